# SPDX-License-Identifier: Apache-2.0
# lodestar_gather_notices(<variable> <folder>): writes into the folder a notice for every library of which the program
# is made, from the licence file that the library's package installs, and sets the variable to the notices' files. A
# library that is added to Packaging/debian-packages.txt must be added here as well. When a licence file is missing, the
# build fails: a program must not be given away without its notices.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
set(LODESTAR_LICENCE_FOLDER /usr/share/doc CACHE PATH "Where packages install <package>/copyright")
set(LODESTAR_COMMON_LICENCES /usr/share/common-licenses CACHE PATH "Where the texts are that those files refer to")

function(lodestar_gather_notices variable folder)
  set(packages
    "Qt Base=qt6-base-dev"
    "Qt Declarative=qt6-declarative-dev"
    "Qt Sensors=qt6-sensors-dev"
    "Qt SVG=qt6-svg-dev"
    "libxml2=libxml2-dev"
    "SQLite=libsqlite3-dev"
    "SQLiteCpp=libsqlitecpp-dev"
    "libcurl=libcurl4-openssl-dev"
    "OpenSSL=libssl-dev"
    "zlib=zlib1g-dev"
    "simdjson=libsimdjson-dev"
    "libfmt=libfmt-dev"
    "utf8proc=libutf8proc-dev"
    "QtKeychain=qtkeychain-qt6-dev"
    "libsecret=libsecret-1-0"
    "backward-cpp=libbackward-cpp-dev"
    "Lato=fonts-lato")
  set(texts
    "GNU Lesser General Public License 3=LGPL-3"
    "GNU Lesser General Public License 2.1=LGPL-2.1"
    "GNU General Public License 3=GPL-3"
    "Apache License 2.0=Apache-2.0")
  set(notices)
  foreach(entry IN LISTS packages)
    string(REGEX MATCH "^(.*)=(.*)$" unused "${entry}")
    list(APPEND notices "${CMAKE_MATCH_1}=${LODESTAR_LICENCE_FOLDER}/${CMAKE_MATCH_2}/copyright")
  endforeach()
  foreach(entry IN LISTS texts)
    string(REGEX MATCH "^(.*)=(.*)$" unused "${entry}")
    list(APPEND notices "${CMAKE_MATCH_1}=${LODESTAR_COMMON_LICENCES}/${CMAKE_MATCH_2}")
  endforeach()
  execute_process(COMMAND "${Python3_EXECUTABLE}" "${CMAKE_SOURCE_DIR}/Scripts/notices.py" "${folder}" ${notices}
    RESULT_VARIABLE status ERROR_VARIABLE message)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "The open-source notices are incomplete: ${message}")
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/Scripts/notices.py")
  file(GLOB files "${folder}/*.txt")
  set(${variable} "${files}" PARENT_SCOPE)
endfunction()
