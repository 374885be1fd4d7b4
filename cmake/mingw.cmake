# Windows programs, compiled on Debian by mingw-w64. tools/windows_check uses it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The flavour that has std::thread.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# What pkg-config would find are libraries of this machine.
set(CMAKE_DISABLE_FIND_PACKAGE_PkgConfig ON)
# The programs run without the compiler's libraries beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
