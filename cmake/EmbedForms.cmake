# Writes a C++ source that holds form files as arrays of bytes: the sample application carries its forms with it.
# Call: cmake -DOUT=file.cpp -DFILES=a.dfm;b.dfm -P EmbedForms.cmake
set(arrays "")
set(rows "")
set(index 0)
foreach(file IN LISTS FILES)
  file(READ ${file} hex HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
  string(REGEX REPLACE "(................................................................................)" "\\1\n    " bytes "${bytes}")
  get_filename_component(name ${file} NAME)
  string(APPEND arrays "constexpr unsigned char Bytes${index}[] = {\n    ${bytes}};\n")
  string(APPEND rows "    {\"${name}\", {reinterpret_cast<const char*>(Bytes${index}), sizeof Bytes${index}}},\n")
  math(EXPR index "${index} + 1")
endforeach()
file(WRITE ${OUT}.new "#include \"host/sample/OrdersForms.h\"

namespace rux {

namespace {

${arrays}
const TEmbeddedForm Forms[] = {
${rows}};

}  // namespace

std::span<const TEmbeddedForm> OrdersForms() { return Forms; }

}  // namespace rux
")
file(COPY_FILE ${OUT}.new ${OUT} ONLY_IF_DIFFERENT)
