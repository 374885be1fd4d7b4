# Writes OUTPUT, a C++ source with the files of the icons in FOLDER.
# Run as cmake -DFOLDER=... -DOUTPUT=... -P embed_icons.cmake
file(GLOB icons "${FOLDER}/*.svg")
set(texts "")
set(rows "")
foreach(icon IN LISTS icons)
    cmake_path(GET icon STEM cell)
    if(NOT cell MATCHES "^[0-9][0-9][0-9]$")
        message(FATAL_ERROR "${icon}: an icon is called after its cell, as in 007.svg")
    endif()
    file(READ "${icon}" text)
    string(REGEX REPLACE "^0+" "" number "${cell}")
    string(APPEND texts "ICON_DATA char icon${number}[] = R\"svg(${text})svg\";\n")
    string(APPEND rows "        case ${number}: return icon${number};\n")
endforeach()
file(WRITE "${OUTPUT}" "#include \"compile/icon_files.h\"

// In a section of their own they don't lie among the constants that every run reads.
#define ICON_DATA __attribute__((section(\"icons\"))) constexpr

namespace quorvane {

${texts}
std::string IconFile(int cell) {
    switch (cell) {
${rows}        default: return \"\";
    }
}

}  // namespace quorvane
")
