# cmake -D INPUT=script.tgx -D OUTPUT=script.cpp -D ID=141 -P bytes_to_cpp.cmake
#
# Writes the bytes of INPUT to a C++ source that registers them as resource ID of type "TGXScript".

file(READ ${INPUT} hex HEX)
string(LENGTH "${hex}" digits)
math(EXPR size "${digits} / 2")
# Rows of 32 bytes, because a single line would be too long for compilers and people.
set(octet "[0-9a-f][0-9a-f]")
string(REPEAT ${octet} 32 row)
string(REGEX REPLACE "(${row})" "\\1\n" hex "${hex}")
string(REGEX REPLACE "(${octet})" "0x\\1," array "${hex}")

file(WRITE ${OUTPUT} "#include \"platform/system/module.h\"

namespace {
// The extra 0 is for an empty script, because an array needs an element. It is not part of the size.
const unsigned char bytes[] = {
${array}0};
const EmbeddedResource resource(\"TGXScript\", ${ID}, bytes, ${size});
} // namespace
")
