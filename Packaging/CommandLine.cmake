# SPDX-License-Identifier: Apache-2.0
# The component "cli". Both packages have the module of the transfers, each in a folder of its own: neither needs the
# other. The program lies beside its module; what stands in bin is a link to it.
set(place lib/lodestar-cli)
install(TARGETS lodestar-cli RUNTIME DESTINATION ${place} COMPONENT cli)
if(TARGET lodestar_transfers)
  install(TARGETS lodestar_transfers LIBRARY DESTINATION ${place} COMPONENT cli)
endif()
file(CREATE_LINK ../${place}/lodestar-cli "${CMAKE_CURRENT_BINARY_DIR}/lodestar-cli" SYMBOLIC)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/lodestar-cli" DESTINATION bin COMPONENT cli)
install(FILES lodestar-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT cli)
install(FILES completions/lodestar-cli.bash RENAME lodestar-cli
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT cli)
install(FILES completions/_lodestar-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT cli)
install(FILES lodestar-cli.copyright RENAME copyright
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lodestar-cli COMPONENT cli)
install(FILES ../docs/command-line.md ../docs/monitoring.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lodestar-cli COMPONENT cli)

# For monitoring: units that an administrator enables, the user whom they run as, alerts.
install(FILES systemd/lodestar-consoles.service systemd/lodestar-export.service systemd/lodestar-textfile.service
  systemd/lodestar-textfile.timer DESTINATION lib/systemd/system COMPONENT cli)
install(FILES systemd/lodestar-.service.d/50-hardening.conf DESTINATION lib/systemd/system/lodestar-.service.d
  COMPONENT cli)
install(FILES systemd/lodestar.sysusers RENAME lodestar.conf DESTINATION lib/sysusers.d COMPONENT cli)
install(FILES prometheus/lodestar-rules.yml prometheus/lodestar-scrape.yml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lodestar-cli/prometheus COMPONENT cli)
