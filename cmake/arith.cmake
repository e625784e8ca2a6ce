# Floating-point discipline: every operation rounds once, as written, in the
# precision of its operands, whatever compiler and flags build vtxgen.
#
# VTX_FP_OPTIONS go on every compile line of the project after the user's
# CMAKE_CXX_FLAGS and the build type's flags (CMake puts directory options
# after both), so they win over -ffast-math, -Ofast or -ffp-contract=fast
# given there.  -ffp-contract=off comes last, the last word on contraction:
# clang's -fno-fast-math changes it too (back to its default, on, after a
# -ffast-math).  32-bit x86 computes in SSE2 registers, as x86-64 does, never
# in x87's wider format.
#
# What they cannot override, flags placed after them (by a compiler wrapper,
# say), is caught twice: src/frame/rounding.hpp stops any unit that sees
# fast-math or excess precision, and vtx_fp_options() below stops the
# configuration when products and sums come out fused.
set(VTX_FP_OPTIONS -fno-fast-math -ffp-contract=off)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(APPEND VTX_FP_OPTIONS -msse2 -mfpmath=sse)
endif()

set(VTX_FP_PROBE ${CMAKE_CURRENT_LIST_DIR}/../tools/compiler_faults/fused_addsub.c)

# vtx_fp_probe(<var> [options...]): compiles the probe to assembly as the
# build compiles its units (compiler, CMAKE_CXX_FLAGS, the build type's
# flags), then <options>; <var> is the first fused multiply-add instruction
# in it, or empty.
function(vtx_fp_probe out)
  string(TOUPPER "${CMAKE_BUILD_TYPE}" config)
  separate_arguments(flags UNIX_COMMAND
    "${CMAKE_CXX_COMPILER_ARG1} ${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${config}}")
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} ${flags} ${ARGN} -std=c++20 -x c++ -S -o - ${VTX_FP_PROBE}
    OUTPUT_VARIABLE assembly ERROR_VARIABLE errors RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "The compiler cannot build ${VTX_FP_PROBE} with this build's flags and ${ARGN}:\n${errors}")
  endif()
  string(REGEX MATCH "[ \t]vfn?m(add|sub)[a-z0-9]*" found "${assembly}")
  string(STRIP "${found}" found)
  set(${out} "${found}" PARENT_SCOPE)
endfunction()

# vtx_fp_options(<var> [options...]): the floating-point options of units
# compiled with this build's flags and <options> after them (an instruction
# set of their own, say): VTX_FP_OPTIONS and, where the compiler needs it,
# -fno-tree-vectorize.  Stops the configuration when contraction is on.
function(vtx_fp_options out)
  # With FMA instructions at hand, GCC's vectorizers off and the optimiser
  # on (-O2, whatever the build's level), a product and a sum come out fused
  # only where contraction is on: a flag placed after -ffp-contract=off
  # turned it on again.
  string(JOIN " " fp_options ${VTX_FP_OPTIONS})
  vtx_fp_probe(fused ${VTX_FP_OPTIONS} ${ARGN} -O2 -mfma -fno-tree-vectorize)
  if(fused)
    message(FATAL_ERROR "The compiler fuses multiplications and additions (${fused}) although vtxgen "
      "compiles with ${fp_options}: a flag after them (from a compiler wrapper?) turns contraction on, "
      "and the library would not compute its own bits.")
  endif()
  # GCC 12, wherever FMA instructions are available, fuses the products of a
  # sum and a difference that its vectorizer (either one) puts in the lanes
  # of one vector (vfmaddsub), contraction off or not; only turning the
  # vectorizers off stops it.  Without FMA instructions (x86-64's baseline,
  # the reference build) nothing changes.
  set(options ${VTX_FP_OPTIONS})
  vtx_fp_probe(fused ${options} ${ARGN})
  if(fused)
    list(APPEND options -fno-tree-vectorize)
    vtx_fp_probe(still ${options} ${ARGN})
    if(still)
      message(FATAL_ERROR "The compiler fuses multiplications and additions (${still}) with "
        "${fp_options} -fno-tree-vectorize ${ARGN}: vtxgen cannot keep its bits with it.")
    endif()
    message(STATUS "The compiler fuses vectorized products (${fused}) despite -ffp-contract=off with these "
      "flags (tools/compiler_faults/fused_addsub.c): vtxgen is compiled with -fno-tree-vectorize")
  endif()
  set(${out} ${options} PARENT_SCOPE)
endfunction()
