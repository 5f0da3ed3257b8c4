# SPDX-License-Identifier: Apache-2.0
# Makes Qt's compiler of QML write the same bytes each time. It declares a function's variables in the order of their
# addresses in its memory, which the system draws by lot; a program that runs in its place puts them in order. So two
# builds are alike, and a cache of compiled files knows the files again.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
get_target_property(LODESTAR_QMLCACHEGEN Qt6::qmlcachegen LOCATION)
configure_file("${CMAKE_CURRENT_LIST_DIR}/qmlcachegen.py.in" "${CMAKE_BINARY_DIR}/qmlcachegen" @ONLY
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
