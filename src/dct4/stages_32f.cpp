// The DCT-IV stage computations in single precision.
#include "dct4/stages_body.hpp"

namespace vtx::dct4 {

template std::int32_t env5_compute<float>(const Env5*, float*, const float*);
template std::int32_t env7_compute<float>(const Env7*, float*, const float*, std::int32_t, std::int32_t, std::int32_t);
template std::int32_t env9_compute<float>(const Env9*, float*, const float*, std::int32_t, std::int32_t, std::int32_t);
template std::int32_t env8_compute<float>(const Env8*, float*, const float*, std::int32_t, std::int32_t);
template std::int32_t env4_compute<float>(const Env4*, float*, const float*);
template std::int32_t env1_compute<float>(const Env1*, float*, const float*);

}  // namespace vtx::dct4
