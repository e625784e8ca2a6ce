# The floating-point options of cmake/arith.cmake, run as a script:
#
#   cmake -DCMAKE_CXX_COMPILER=... -DCMAKE_CXX_FLAGS=... -DCMAKE_SIZEOF_VOID_P=8
#         [-DVTX_AFTER=<flags>] -P check_fp_options.cmake
#
# Without VTX_AFTER: for every instruction set a unit may add to the build's
# flags, the options vtx_fp_options() returns keep the probe free of fused
# multiply-adds.  With VTX_AFTER: those flags come after the options, as a
# compiler wrapper would put them, and the configuration must stop.
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/arith.cmake)

if(DEFINED VTX_AFTER)
  separate_arguments(after UNIX_COMMAND "${VTX_AFTER}")
  set(VTX_FP_OPTIONS ${VTX_FP_OPTIONS} ${after})
  vtx_fp_options(options)
  message(FATAL_ERROR "${VTX_AFTER} after the library's options was not noticed")
endif()

foreach(isa "" "-mfma" "-mavx2 -mfma" "-march=haswell" "-mavx512f -mavx512vl -mno-fma" "-march=native")
  separate_arguments(extra UNIX_COMMAND "${isa}")
  vtx_fp_options(options ${extra})
  vtx_fp_probe(fused ${options} ${extra})
  if(fused)
    message(FATAL_ERROR "with '${isa}' the probe still holds ${fused} under ${options}")
  endif()
  message(STATUS "'${isa}': ${options}")
endforeach()
