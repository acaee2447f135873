# Toolchain file: Debian's cross compiler for 64-bit Windows, in its flavour with standard C++ threads. It checks what
# Windows alone compiles on machines without Windows; releases are made with MSVC (docs/windows.md).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
