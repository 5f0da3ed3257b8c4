# SPDX-License-Identifier: Apache-2.0
# lodestar_qml_module(<target> URI <uri> [INCLUDES folders] [SINGLETONS files] [QML_FILES files] [IMPORTS uris] [USES
# uris]): turns the static library into a QML module under qrc:/. All its files stand at the module's top, whatever
# folder they come from. INCLUDES are the folders of the registered C++ types, since generated code includes their
# headers by bare name. An import of this module also imports the IMPORTS. USES are modules whose types the QML only
# names; an import of this module does not load them. The target <target>_qmllint lints the module.
function(lodestar_qml_module target)
  cmake_parse_arguments(ARG "" "URI" "INCLUDES;SINGLETONS;QML_FILES;IMPORTS;USES" ${ARGN})
  string(REPLACE "." "/" path "${ARG_URI}")
  target_include_directories(${target} PUBLIC ${ARG_INCLUDES})
  set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  foreach(file IN LISTS ARG_SINGLETONS ARG_QML_FILES)
    get_filename_component(name "${file}" NAME)
    set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
  endforeach()
  set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_EXECUTABLE "${CMAKE_BINARY_DIR}/qmlcachegen")
  qt_add_qml_module(${target} URI ${ARG_URI} VERSION 1.0 NO_PLUGIN RESOURCE_PREFIX /
    OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml/${path}" IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
    DEPENDENCIES QtQuick ${ARG_USES} IMPORTS ${ARG_IMPORTS}
    QML_FILES ${ARG_SINGLETONS} ${ARG_QML_FILES})
  # Generated sources are compiled without warnings: nobody can mend them.
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "/\\.rcc/|_qmltyperegistrations")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS "-w")
endfunction()
