# Brings the tree that goes into the Debian package into the form that Debian's policy asks for:
# packed manual pages and changelog and the licence as "copyright".

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
file(WRITE "${doc}/copyright"
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: Quorvane

Files: *
Copyright: ${holder}
License: Expat

License: Expat
 ${licence}
")
file(REMOVE "${doc}/LICENSE")

# The change list of the program, and beside it the one of the package, which only points there.
file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE "${doc}/changelog.Debian"
"quorvane (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * See changelog.gz for what is new in the program.

 -- ${CPACK_PACKAGE_CONTACT}  ${now}
")
file(READ "${doc}/README.md" readme)
string(REPLACE "(CHANGELOG.md)" "(changelog.gz)" readme "${readme}")
string(REPLACE "(LICENSE)" "(copyright)" readme "${readme}")
file(WRITE "${doc}/README.md" "${readme}")
file(GLOB pages "${tree}/man/man1/*.1")
execute_process(COMMAND "${GZIP}" -9nf "${doc}/changelog" "${doc}/changelog.Debian" ${pages}
    COMMAND_ERROR_IS_FATAL ANY)
