# A build for another processor runs its tests and tools directly where the
# machine can start them (a 32-bit build on an x86-64 kernel with IA-32
# support) and under qemu's user-mode emulator where it cannot.
if(NOT CMAKE_CROSSCOMPILING OR CMAKE_CROSSCOMPILING_EMULATOR)
  return()
endif()

set(probe_dir ${CMAKE_BINARY_DIR}/CMakeFiles/vtx_run_probe)
file(WRITE ${probe_dir}/probe.c "int main(void) { return 0; }\n")
try_compile(probe_built ${probe_dir}/build SOURCES ${probe_dir}/probe.c
  COPY_FILE ${probe_dir}/probe)
if(NOT probe_built)
  message(FATAL_ERROR "The compiler cannot build a program for ${CMAKE_SYSTEM_PROCESSOR}")
endif()
execute_process(COMMAND ${probe_dir}/probe RESULT_VARIABLE probe_status
  OUTPUT_QUIET ERROR_QUIET)
if(probe_status EQUAL 0)
  return()
endif()

find_program(VTX_QEMU NAMES qemu-${CMAKE_SYSTEM_PROCESSOR} qemu-i386)
if(NOT VTX_QEMU)
  message(FATAL_ERROR "This machine cannot start ${CMAKE_SYSTEM_PROCESSOR} programs "
    "and has no qemu-i386 to run them (Debian: apt-get install qemu-user)")
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR ${VTX_QEMU} CACHE FILEPATH
  "Runs the build's programs, which this machine cannot start itself" FORCE)
message(STATUS "${CMAKE_SYSTEM_PROCESSOR} programs run under ${VTX_QEMU}")
