# Included before project(): the set-up step of the workflows, the Python
# interpreter of the package, and the rule that nothing is left out.
#
# A workflow's first step can only configure, so the `main` and `test`
# configure presets name their task in VTX_SETUP and the configuration runs
# tools/setup for it before anything is looked for: on a fresh machine the
# packages are installed (as root) before the first find_package, and as
# anyone else the configuration stops at once with the apt-get line.  When
# everything is installed the step asks dpkg only, a fraction of a second,
# so it may run at every configuration.
set(VTX_SETUP "" CACHE STRING
  "Run tools/setup for this task (main, test or ci) first at every configuration; empty: never")
option(VTX_REQUIRE_ALL
  "Fail the configuration when a part of the test suite lacks a dependency, instead of leaving it out" OFF)

if(VTX_SETUP)
  execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../tools/setup ${VTX_SETUP} RESULT_VARIABLE vtx_setup_status)
  if(NOT vtx_setup_status EQUAL 0)
    message(FATAL_ERROR "The set-up step `tools/setup ${VTX_SETUP}` failed (status ${vtx_setup_status}); "
                        "what it said is above.")
  endif()
endif()

# Debian's interpreter, the one whose NumPy, SciPy and Dask the packages
# install, for the package, its tests and the scripts, also where another
# python3 (a pyenv one, say) comes first on PATH.  -DPython3_EXECUTABLE=...
# names another.
if(NOT DEFINED Python3_EXECUTABLE AND EXISTS /usr/bin/python3)
  set(Python3_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "The Python interpreter of the package and its tests")
endif()

# vtx_require(<found> <what> <packages>): under VTX_REQUIRE_ALL, stop the
# configuration when <found> is false, naming what is missing and the Debian
# packages that bring it.
function(vtx_require found what packages)
  if(VTX_REQUIRE_ALL AND NOT found)
    message(FATAL_ERROR "${what} is missing, and this configuration (VTX_REQUIRE_ALL) leaves nothing out.\n"
                        "Debian: apt-get install ${packages}; `tools/setup test` installs all the test suite needs.")
  endif()
endfunction()
