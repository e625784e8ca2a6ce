// The DCT-IV stage computations on the vectors of one instruction set: this
// file is compiled once per set, with that set's flags (src/CMakeLists.txt),
// into the namespace that lanes.hpp names after the set.
#include "dct4/stages_body.hpp"

VTX_DCT4_INSTANTIATE
