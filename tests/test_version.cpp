// The version query, with the core library's feature query replaced by this
// executable's own (exported, so the dynamic linker binds the library to it).
#include "vtxcore.h"
#include "vtxgen.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>

namespace {

int g_answer = 0;
int g_calls = 0;
int g_feature = -1, g_arg = -1;

}  // namespace

extern "C" VTXCOREAPI int ownGetFeature(int feature, int arg)
{
    ++g_calls;
    g_feature = feature;
    g_arg = arg;
    return g_answer;
}

namespace {

const char kPlain[] = "libvtxgenp8.so.6.1";
const char kTagged[] = "libvtxgenp8.so.6.1+";

// One query with the feature answer given; checks the question asked.
const VersionRecord* query(int answer)
{
    g_answer = answer;
    g_feature = g_arg = -1;
    const int before = g_calls;
    const VersionRecord* r = vtxgenGetLibVersion();
    EXPECT_EQ(g_calls, before + 1) << "feature queries for one version query, answer " << answer;
    EXPECT_EQ(g_feature, 128) << "answer " << answer;
    EXPECT_EQ(g_arg, 0) << "answer " << answer;
    return r;
}

class Version : public ::testing::TestWithParam<int> {};

TEST_P(Version, RecordFollowsTheFeatureAnswer)
{
    const int answer = GetParam();
    const VersionRecord* r = query(answer);
    ASSERT_NE(r, nullptr);
    EXPECT_STREQ(r->libraryName, answer != 0 ? kTagged : kPlain);
    EXPECT_EQ(r->versionMajor, 6);
    EXPECT_EQ(r->versionMinor, 1);
    EXPECT_EQ(r->buildMajor, 137);
    EXPECT_EQ(r->buildNumber, 336);
    EXPECT_EQ(std::memcmp(r->cpuTag, "p8\0\0", 4), 0);
    EXPECT_STREQ(r->versionText, "6.1 build 137.56");
    EXPECT_STREQ(r->buildDate, "Mar 17 2010");
    EXPECT_EQ(query(answer), r) << "a second query with answer " << answer;
}

INSTANTIATE_TEST_SUITE_P(Answers, Version, ::testing::Values(0, 1, -1, 2, 128, INT_MAX, INT_MIN));

// The answer is asked for anew on every query, never remembered.
TEST(VersionQuery, AnswerIsNotCached)
{
    const VersionRecord* plain = query(0);
    const VersionRecord* tagged = query(1);
    ASSERT_NE(plain, tagged);
    for (int answer : {0, 1, 1, 0, -1, 0})
        EXPECT_EQ(query(answer), answer ? tagged : plain) << "answer " << answer;
}

}  // namespace
