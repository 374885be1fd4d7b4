# Writes OUTPUT, a C++ source with the drawings of the icons in FOLDER, each without its <svg> element,
# comments and indentation. Ids, and what refers to them, get the cell's number in front: several icons
# stand in one picture. Run as cmake -DFOLDER=... -DOUTPUT=... -P embed_icons.cmake
file(GLOB icons "${FOLDER}/*.svg")
set(texts "")
set(rows "")
foreach(icon IN LISTS icons)
    cmake_path(GET icon STEM cell)
    if(NOT cell MATCHES "^[0-9][0-9][0-9]$")
        message(FATAL_ERROR "${icon}: an icon is called after its cell, as in 007.svg")
    endif()
    file(READ "${icon}" drawing)
    string(REGEX REPLACE "<!--([^-]|-[^-])*-->" "" drawing "${drawing}")
    string(REGEX REPLACE "^.*<svg[^>]*>" "" drawing "${drawing}")
    string(REGEX REPLACE "</svg>.*$" "" drawing "${drawing}")
    string(REGEX REPLACE "[ \t\r\n]*\n[ \t\r\n]*" "" drawing "${drawing}")
    string(REGEX REPLACE " id=\"" " id=\"c${cell}-" drawing "${drawing}")
    string(REGEX REPLACE "(href=\"|url\\()#" "\\1#c${cell}-" drawing "${drawing}")
    string(REGEX REPLACE "^0+" "" number "${cell}")
    string(APPEND texts "ICON_DATA char icon${number}[] = R\"svg(${drawing})svg\";\n")
    string(APPEND rows "        case ${number}: return icon${number};\n")
endforeach()
file(WRITE "${OUTPUT}" "#include \"compile/picture.h\"

// In a section of their own they don't lie among the constants that every run reads.
#define ICON_DATA __attribute__((section(\"icons\"))) constexpr

namespace quorvane {

${texts}
std::string_view IconDrawing(int cell) {
    switch (cell) {
${rows}        default: return \"\";
    }
}

}  // namespace quorvane
")
