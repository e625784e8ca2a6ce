// The version query: one of two constant records, chosen anew on every call
// by the core library's answer to feature 128.
#include "vtxcore.h"
#include "vtxgen.h"

namespace {

const VersionRecord s_libVer_t = {
    6, 1, 137, 336, {'p', '8', 0, 0}, "libvtxgenp8.so.6.1+", "6.1 build 137.56", "Mar 17 2010",
};

const VersionRecord s_libVer = {
    6, 1, 137, 336, {'p', '8', 0, 0}, "libvtxgenp8.so.6.1", "6.1 build 137.56", "Mar 17 2010",
};

}  // namespace

extern "C" const VersionRecord* vtxgenGetLibVersion(void)
{
    return ownGetFeature(128, 0) != 0 ? &s_libVer_t : &s_libVer;
}
