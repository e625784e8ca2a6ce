# 32-bit x86 on an x86-64 Linux machine: the library, its tests and tools are
# built for i686 with SSE2 arithmetic, the kernel generator for the machine
# itself (gen/CMakeLists.txt builds it apart).  Where the machine's kernel
# cannot start 32-bit programs, the top-level project runs them under
# qemu-i386.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
