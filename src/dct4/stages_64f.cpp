// The DCT-IV stage computations in double precision.
#include "dct4/stages_body.hpp"

namespace vtx::dct4 {

template std::int32_t env5_compute<double>(const Env5*, double*, const double*);
template std::int32_t env7_compute<double>(const Env7*, double*, const double*, std::int32_t, std::int32_t, std::int32_t);
template std::int32_t env9_compute<double>(const Env9*, double*, const double*, std::int32_t, std::int32_t, std::int32_t);
template std::int32_t env8_compute<double>(const Env8*, double*, const double*, std::int32_t, std::int32_t);
template std::int32_t env4_compute<double>(const Env4*, double*, const double*);
template std::int32_t env1_compute<double>(const Env1*, double*, const double*);

}  // namespace vtx::dct4
