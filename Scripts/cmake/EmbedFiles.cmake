# SPDX-License-Identifier: Apache-2.0
# cmake -DOUT=file.cpp -DFILES="a b" -P EmbedFiles.cmake: writes the bytes of the files as the C++ array `bundledFiles`.
separate_arguments(FILES)
set(arrays "")
set(rows "")
foreach(file IN LISTS FILES)
  get_filename_component(name "${file}" NAME)
  string(MAKE_C_IDENTIFIER "${name}" identifier)
  file(READ "${file}" bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "static const unsigned char ${identifier}[] = {${bytes}};\n")
  string(APPEND rows "    {\"${name}\", ${identifier}, sizeof ${identifier}},\n")
endforeach()
file(WRITE "${OUT}" "#include \"CommandLine/BundledResources.h\"\n${arrays}
const lodestar::BundledFile lodestar::bundledFiles[] = {\n${rows}    {nullptr, nullptr, 0}};\n")
