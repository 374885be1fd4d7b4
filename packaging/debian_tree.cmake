# Brings the tree that goes into the Debian package into the form that Debian's policy asks for:
# packed manual pages, the change lists, and "copyright" with the licences of all that is compiled in.

include("${CMAKE_CURRENT_LIST_DIR}/releases.cmake")
set(tree "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(doc "${tree}/doc/quorvane")
find_program(GZIP gzip REQUIRED)

file(READ "${doc}/LICENSE" licence)
string(REGEX REPLACE "^MIT License\n+" "" licence "${licence}")
string(REGEX MATCH "Copyright[^\n]*" holder "${licence}")
string(REGEX REPLACE "^Copyright[^\n]*\n+" "" licence "${licence}")
string(STRIP "${licence}" licence)
string(REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REPLACE "\n" "\n " licence "${licence}")
string(REPLACE "Copyright (c) " "" holder "${holder}")

# The headers whose code is in quorvane-compile come from a Debian package, which names their holders.
# Their licence is the same as ours.
file(READ "/usr/share/doc/nlohmann-json3-dev/copyright" rest)
set(holders "")
while(rest MATCHES "\nFiles: (\\*|include/[^\n]*)\nCopyright: ([^\n]*)\nLicense: Expat\n(.*)")
    list(APPEND holders "${CMAKE_MATCH_2}")
    set(rest "${CMAKE_MATCH_3}")
endwhile()
list(JOIN holders "\n           " holders)
if(NOT holders)
    message(FATAL_ERROR "The copyright file of nlohmann-json3-dev names no holder")
endif()

file(WRITE "${doc}/copyright"
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: Quorvane

Files: *
Copyright: ${holder}
License: Expat

Files: nlohmann-json/*
Copyright: ${holders}
License: Expat
Comment: Compiled into quorvane-compile from its headers.

Files: libstdc++/* libgcc/*
Copyright: Free Software Foundation, Inc.
License: GPL-3+ with GCC-Runtime-Library-Exception-3.1
Comment: Linked statically into quorvane-compile.

License: Expat
 ${licence}

License: GPL-3+ with GCC-Runtime-Library-Exception-3.1
 The GNU General Public License, version 3, is in /usr/share/common-licenses/GPL-3. The exception
 allows these libraries to be part of programs under any licence.
")
file(REMOVE "${doc}/LICENSE")

# The change list of the program, and beside it the one of the package, which only points there. The
# newest release is dated by the time of packing.
file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")
read_releases("${doc}/changelog" release)
string(TIMESTAMP when "%Y-%m-%d %H:%M:%S" UTC)
set(entries "")
foreach(version date IN ZIP_LISTS release_VERSIONS release_DATES)
    if(entries)
        set(when "${date} 00:00:00")
    endif()
    execute_process(COMMAND date -u -R -d "${when}" OUTPUT_VARIABLE dated
        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND entries
"quorvane (${version}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * See changelog.gz for what is new in the program.

 -- ${CPACK_PACKAGE_CONTACT}  ${dated}

")
endforeach()
string(STRIP "${entries}" entries)
file(WRITE "${doc}/changelog.Debian" "${entries}\n")
file(READ "${doc}/README.md" readme)
string(REPLACE "(CHANGELOG.md)" "(changelog.gz)" readme "${readme}")
string(REPLACE "(LICENSE)" "(copyright)" readme "${readme}")
file(WRITE "${doc}/README.md" "${readme}")
file(GLOB pages "${tree}/man/man1/*.1")
execute_process(COMMAND "${GZIP}" -9nf "${doc}/changelog" "${doc}/changelog.Debian" ${pages}
    COMMAND_ERROR_IS_FATAL ANY)
