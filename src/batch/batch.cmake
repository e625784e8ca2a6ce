# Batches: the cores of every family across transforms (generated), compiled
# once per instruction set with its runtime, the tables (generated) and the
# entries.  Included by src/CMakeLists.txt after the library's target.
set(VTX_BATCH_SOURCES)
foreach(family "complex fwd 32fc" "complex inv 32fc" "complex fwd 64fc" "complex inv 64fc"
               "real fwd 32f" "real fwd 64f" "real inv 32f" "real inv 64f" "real hartley 32f" "real hartley 64f")
  separate_arguments(words UNIX_COMMAND "${family}")
  string(REPLACE " " "_" stem "${family}")
  foreach(range IN LISTS VTX_SIZE_RANGES)
    string(REPLACE "-" ";" bounds ${range})
    list(GET bounds 0 from)
    list(GET bounds 1 to)
    set(out ${VTX_GEN_DIR}/batch_${stem}_${from}_${to}.cpp)
    add_custom_command(OUTPUT ${out}
      COMMAND ${VTX_GENERATOR} batch ${words} ${from} ${to} ${out}
      DEPENDS ${VTX_GENERATOR_DEPENDS}
      COMMENT "Generating batch ${family} kernels ${from} to ${to}")
    list(APPEND VTX_BATCH_SOURCES ${out})
  endforeach()
endforeach()
# No debug information, as the single kernels; and no sanitizer: a core
# reads and writes only the runtime's own arrays (the runtime, which moves
# the caller's memory, is built as everything else), and instrumenting
# thousands of straight-line kernels three times over would triple their
# compile time in the sanitizer builds.
set_source_files_properties(${VTX_BATCH_SOURCES} PROPERTIES COMPILE_OPTIONS "-g0;-fno-sanitize=all")
set(VTX_BATCH_TABLES ${VTX_GEN_DIR}/batch_tables.cpp)
add_custom_command(OUTPUT ${VTX_BATCH_TABLES}
  COMMAND ${VTX_GENERATOR} batch-tables ${VTX_BATCH_TABLES}
  DEPENDS ${VTX_GENERATOR_DEPENDS}
  COMMENT "Generating the batch tables")

# Each instruction set the build has, numbered as vtx::Isa: SSE2 everywhere,
# AVX2 and AVX-512 on x86-64, with the floating-point options of the rest of
# the library (never a fused multiply-add).
#
# VTX_BATCH_WIDE_SETS=OFF leaves the AVX2 and AVX-512 sets out: every batch
# then runs the SSE2 set (the same bits).  The thread sanitizer's build does
# so: its test asks whether calls on many threads share anything writable,
# and no set's runtime keeps any state, while each set takes about as long to
# compile as all the single kernels.
option(VTX_BATCH_WIDE_SETS "Build the AVX2 and AVX-512 sets of the batch kernels (x86-64)" ON)
set(index 0)
set(sets sse2)
set(wide_definition)
if(CMAKE_SIZEOF_VOID_P EQUAL 8 AND VTX_BATCH_WIDE_SETS)
  list(APPEND sets avx2 avx512)
elseif(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(wide_definition VTX_BATCH_WIDE=0)
endif()
foreach(name IN LISTS sets)
  set(target vtxbatch_${name})
  add_library(${target} OBJECT ${CMAKE_CURRENT_SOURCE_DIR}/batch/groups.cpp ${VTX_BATCH_SOURCES})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
  target_compile_definitions(${target} PRIVATE VTX_BATCH_ISA=${index})
  set(flags)
  if(name STREQUAL "avx2")
    set(flags -mavx2)
  elseif(name STREQUAL "avx512")
    set(flags -mavx512f -mavx512dq -mavx512vl)
  endif()
  vtx_fp_options(fp_options ${flags})
  target_compile_options(${target} PRIVATE ${flags} ${fp_options})
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_options(${target} PRIVATE -mincoming-stack-boundary=2)
  endif()
  set_target_properties(${target} PROPERTIES
    POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_sources(vtxgenp8 PRIVATE $<TARGET_OBJECTS:${target}>)
  math(EXPR index "${index} + 1")
endforeach()
target_sources(vtxgenp8 PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/batch/entries.cpp ${VTX_BATCH_TABLES})
# Only the tables and the entries name the sets.
set_source_files_properties(${CMAKE_CURRENT_SOURCE_DIR}/batch/entries.cpp ${VTX_BATCH_TABLES}
  PROPERTIES COMPILE_DEFINITIONS "${wide_definition}")
