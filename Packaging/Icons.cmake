# SPDX-License-Identifier: Apache-2.0
# The icon in the sizes that themes and desktops ask for, made from the one drawing. A desktop without a renderer for SVG
# files takes the pictures; the drawing itself goes along for all others. Where the renderer is missing, only the drawing
# is installed, except in a package.
option(LODESTAR_PACKAGE "Build what is packaged: whatever an installed Lodestar should have must be there" OFF)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
set(drawing "${CMAKE_SOURCE_DIR}/Resources/icons/app_icon.svg")
install(FILES "${drawing}" RENAME org.ornis.Lodestar.svg DESTINATION ${icons}/scalable/apps)
install(FILES "${CMAKE_SOURCE_DIR}/Resources/icons/app_icon_symbolic.svg" RENAME org.ornis.Lodestar-symbolic.svg
  DESTINATION ${icons}/symbolic/apps)

if(LODESTAR_PACKAGE)
  set(needed REQUIRED)
endif()
find_program(LODESTAR_SVG_RENDERER rsvg-convert ${needed} DOC "What makes pictures of the application's icon")
if(NOT LODESTAR_SVG_RENDERER)
  return()
endif()
foreach(size IN ITEMS 16 22 24 32 48 64 96 128 192 256 512)
  set(picture "${CMAKE_CURRENT_BINARY_DIR}/icon-${size}.png")
  add_custom_command(OUTPUT "${picture}"
    COMMAND "${LODESTAR_SVG_RENDERER}" --width ${size} --height ${size} --output "${picture}" "${drawing}"
    DEPENDS "${drawing}" VERBATIM)
  list(APPEND pictures "${picture}")
  install(FILES "${picture}" RENAME org.ornis.Lodestar.png DESTINATION ${icons}/${size}x${size}/apps)
endforeach()
add_custom_target(lodestar_icons ALL DEPENDS ${pictures})
add_dependencies(lodestar lodestar_icons)
