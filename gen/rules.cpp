#include "rules.hpp"

#include <cctype>
#include <stdexcept>

namespace vtxgen {

// The complex Fourier kernels: size, single-precision rule, double-precision rule.
const std::vector<ComplexRow>& complex_rows()
{
    static const std::vector<ComplexRow> rows = {
        {2, "2", "2"},
        {3, "3", "3"},
        {4, "4", "4"},
        {5, "5", "5"},
        {6, "PF(2,3)", "PF(2,3)"},
        {7, "Rader(PF(2,3))", "7"},
        {8, "CT(4,2)", "R(8)"},
        {9, "CT(3,3)", "CT(3,3)"},
        {10, "PF(5,2)", "PF(5w,2)"},
        {11, "Rader(PF(5,2))", "11"},
        {12, "PF(4,3)", "PF(3,4)"},
        {13, "Rader(PF(4,3))", "Rader(PF(3,4))"},
        {14, "PF(2,7)", "PF(2,7)"},
        {15, "PF(5,3)", "PF(5,3)"},
        {16, "CT(4,4)", "R(16)"},
        {17, "Rader(CT(4,4))", "Rader(CT(4,4))"},
        {18, "CT(PF(3,2),3)", "PF(CT(3,3),2)"},
        {19, "Rader(CT(PF(3,2),3))", "Rader(PF(2,CT(3,3)))"},
        {20, "PF(4,5)", "PF(5,4)"},
        {21, "PF(7,3)", "PF(7,3)"},
        {22, "PF(2,11)", "PF(11,2)"},
        {23, "Rader(PF(2,11))", "Rader(PF(2,11))"},
        {24, "CT(4,PF(3,2))", "PF(8,3)"},
        {25, "CT(5,5)", "CT(5,5)"},
        {26, "PF(Rader(PF(4,3)),2)", "PF(Rader(PF(3,4)),2)"},
        {27, "CT(CT(3,3),3)", "CT(3,CT(3,3))"},
        {28, "PF(4,7)", "PF(4,7)"},
        {29, "Rader(PF(4,7))", "Rader(PF(4,7))"},
        {30, "PF(PF(5,2),3)", "PF(PF(2,5),3)"},
        {31, "Rader(PF(PF(5,2),3))", "Rader(PF(PF(3,5),2))"},
        {32, "CT(4,8)", "R(32)"},
        {33, "PF(11,3)", "PF(11,3)"},
        {34, "PF(2,Rader(CT(4,4)))", "PF(2,Rader(CT(4,4)))"},
        {35, "PF(5,7)", "PF(5w,Rader(PF(2,3)))"},
        {36, "PF(4,CT(3,3))", "PF(4,CT(3,3))"},
        {37, "Rader(PF(4,CT(3,3)))", "Rader(PF(4,CT(3,3)))"},
        {38, "PF(2,Rader(CT(PF(3,2),3)))", "PF(2,Rader(PF(2,CT(3,3))))"},
        {39, "PF(Rader(PF(4,3)),3)", "PF(Rader(PF(3,4)),3)"},
        {40, "CT(PF(5,2),4)", "PF(8,5)"},
        {41, "Rader(CT(PF(5,2),4))", "Rader(PF(5w,CT(2,4)))"},
        {42, "PF(PF(7,2),3)", "PF(PF(2,7),3)"},
        {43, "Rader(PF(PF(7,2),3))", "Rader(PF(PF(2,7),3))"},
        {44, "PF(4,11)", "PF(4,11)"},
        {45, "CT(PF(5,3),3)", "PF(5,CT(3,3))"},
        {46, "CT(Rader(PF(2,11)),2)", "PF(Rader(PF(2,11)),2)"},
        {47, "Chirp(47,CT(CT(3,8),4))", "Rader(PF(Rader(PF(2,11)),2))"},
        {48, "CT(4,PF(3,4))", "PF(16,3)"},
        {49, "CT(7,7)", "CT(7,7)"},
        {50, "CT(PF(5,2),5)", "PF(CT(5,5),2)"},
        {51, "PF(Rader(CT(4,4)),3)", "PF(Rader(CT(4,4)),3)"},
        {52, "PF(4,Rader(PF(4,3)))", "PF(Rader(PF(3,4)),4)"},
        {53, "Rader(PF(4,Rader(PF(3,4))))", "Rader(PF(Rader(PF(3,4)),4))"},
        {54, "PF(2,CT(CT(3,3),3))", "PF(2,CT(3,CT(3,3)))"},
        {55, "PF(5,11)", "PF(11,5)"},
        {56, "CT(PF(7,2),4)", "PF(7,8)"},
        {57, "PF(Rader(CT(PF(3,2),3)),3)", "PF(Rader(PF(2,CT(3,3))),3)"},
        {58, "PF(2,Rader(PF(4,7)))", "PF(Rader(PF(4,7)),2)"},
        {59, "Chirp(59,CT(CT(4,8),4))", "Rader(PF(Rader(PF(4,7)),2))"},
        {60, "CT(4,PF(5,3))", "PF(PF(3,5w),4)"},
        {61, "Rader(CT(4,PF(5,3)))", "Rader(PF(PF(3,4),5))"},
        {62, "CT(Rader(PF(PF(5,2),3)),2)", "PF(Rader(PF(PF(3,5),2)),2)"},
        {63, "PF(CT(3,3),7)", "PF(7,CT(3,3))"},
        {64, "CT(8,8)", "R(64)"},
    };
    return rows;
}

// The real kernels: size, the forward rule and the inverse rule, each the
// same in both precisions.  An inverse kernel is the transpose of the
// forward transform of its rule, so its stages act on the bins in the
// reverse order of the rule's; a Rader block's first transform, on the
// classes of bins, runs its inner rule's stages in their order.  The
// comments give the stages in the order they act on the data, leftmost
// first (R(n) is radix 2 on real data throughout; a Rader row names its
// first transform): forward | inverse.
const std::vector<RealRow>& real_rows()
{
    static const std::vector<RealRow> rows = {
        {2, "2",                             "2"},                                        // direct                | direct
        {3, "3",                             "3"},                                        // direct                | direct
        {4, "4",                             "4"},                                        // 2 x 2                 | 2 x 2
        {5, "5",                             "5"},                                        // direct                | direct
        {6, "PF(3,2)",                       "PF(3,2)"},                                  // 3 x 2                 | 2 x 3
        {7, "7",                             "7"},                                        // direct                | direct
        {8, "R(8)",                          "R(8)"},                                     // 2 x 2 x 2             | 2 x 2 x 2
        {9, "CT(3,3)",                       "CT(3,3)"},                                  // 3 x 3                 | 3 x 3
        {10, "PF(5,2)",                      "PF(5,2)"},                                  // 5 x 2                 | 2 x 5
        {11, "11",                           "Rader(PF(5,2))"},                           // direct                | Rader, 5 x 2
        {12, "PF(4,3)",                      "PF(4,3)"},                                  // 2 x 2 x 3             | 3 x 2 x 2
        {13, "Rader(PF(3,4))",                      "Rader(PF(3,4))t"},                            // Rader, 3 x 2 x 2      | Rader, 3 x 2 x 2
        {14, "PF(2,7)",                      "PF(7,2)"},                                  // 2 x 7                 | 2 x 7
        {15, "PF(3,5)",                      "PF(5,3)"},                                  // 3 x 5                 | 3 x 5
        {16, "R(16)",                        "R(16)"},                                    // 2 x 2 x 2 x 2         | 2 x 2 x 2 x 2
        {17, "Rader(R(16))",                        "Rader(R(16))"},                               // Rader, 2 x 2 x 2 x 2  | Rader, 2 x 2 x 2 x 2
        {18, "PF(2,CT(3,3))",                "PF(CT(3,3),2)"},                            // 2 x 3 x 3             | 2 x 3 x 3
        {19, "Rader(PF(CT(3,3),2))",         "Rader(CT(PF(3,2),3))"},                     // Rader, 3 x 3 x 2      | Rader, 3 x 2 x 3
        {20, "PF(5,CT(2,2))",                "PF(4,5)"},                                  // 5 x 2 x 2             | 5 x 2 x 2
        {21, "PF(7,3)",                      "PF(7,3)"},                                  // 7 x 3                 | 3 x 7
        {22, "PF(2,11)",                     "PF(2,Rader(PF(5,2)))"},                     // 2 x 11                | 11 x 2
        {23, "Rader(PF(2,11))",                     "Rader(PF(11,2))d"},                           // Rader, 2 x 11         | Rader, 11 x 2
        {24, "PF(3,CT(4,2))",                "PF(3,CT(4,2))"},                            // 3 x 2 x 2 x 2         | 2 x 2 x 2 x 3
        {25, "CT(5,5)",                      "CT(5,5)"},                                  // 5 x 5                 | 5 x 5
        {26, "PF(Rader(PF(3,4)),2)",                "PF(Rader(PF(3,4))t,2)"},                      // 13 x 2                | 2 x 13
        {27, "CT(3,CT(3,3))",                "CT(3,CT(3,3))"},                            // 3 x 3 x 3             | 3 x 3 x 3
        {28, "PF(4,7)",                      "PF(7,4)"},                                  // 2 x 2 x 7             | 2 x 2 x 7
        {29, "Rader(PF(7,4))",                      "Rader(PF(7,4))"},                             // Rader, 7 x 2 x 2      | Rader, 7 x 2 x 2
        {30, "PF(5,PF(3,2))",                "PF(PF(2,5),3)"},                            // 5 x 3 x 2             | 3 x 5 x 2
        {31, "Rader(PF(PF(3,2),5))p",               "Rader(PF(PF(3,2),5))p"},                      // Rader, 3 x 2 x 5      | Rader, 3 x 2 x 5
        {32, "R(32)",                        "R(32)"},                                    // 2 x 2 x 2 x 2 x 2     | 2 x 2 x 2 x 2 x 2
        {33, "PF(11,3)",                     "PF(Rader(PF(5,2)),3)"},                     // 11 x 3                | 3 x 11
        {34, "PF(2,Rader(R(16)))",                  "PF(2,Rader(R(16)))"},                         // 2 x 17                | 17 x 2
        {35, "PF(7,5)",                      "PF(7,5)"},                                  // 7 x 5                 | 5 x 7
        {36, "PF(CT(3,3),CT(2,2))",          "PF(CT(3,3),4)"},                            // 3 x 3 x 2 x 2         | 2 x 2 x 3 x 3
        {37, "Rader(PF(4,CT(3,3)))",         "Rader(PF(4,CT(3,3)))"},                     // Rader, 2 x 2 x 3 x 3  | Rader, 4 x 3 x 3
        {38, "PF(Rader(PF(CT(3,3),2)),2)",   "PF(Rader(CT(PF(3,2),3)),2)"},               // 19 x 2                | 2 x 19
        {39, "PF(Rader(PF(3,4)),3)",                "PF(3,Rader(PF(3,4))t)"},                      // 13 x 3                | 13 x 3
        {40, "PF(CT(4,2),5)",                "PF(R(8),5)"},                               // 2 x 2 x 2 x 5         | 5 x 2 x 2 x 2
        {41, "Rader(PF(5,8))",                      "Rader(PF(5,8))"},                             // Rader, 5 x 2 x 2 x 2  | Rader, 5 x 2 x 2 x 2
        {42, "PF(7,PF(3,2))",                "PF(7,PF(3,2))"},                            // 7 x 3 x 2             | 2 x 3 x 7
        {43, "Rader(PF(PF(2,7),3))",                "Rader(PF(PF(7,2),3))p"},                      // Rader, 2 x 7 x 3      | Rader, 7 x 2 x 3
        {44, "PF(11,4)",                     "PF(Rader(PF(5,2)),4)"},                     // 11 x 2 x 2            | 2 x 2 x 11
        {45, "PF(5,CT(3,3))",                "PF(CT(3,3),5)"},                            // 5 x 3 x 3             | 5 x 3 x 3
        {46, "PF(2,Rader(PF(2,11)))",               "PF(2,Rader(PF(11,2))d)"},                     // 2 x 23                | 23 x 2
        {47, "Rader(PF(Rader(PF(2,11)),2))",        "Rader(PF(Rader(PF(2,11)),2))"},               // Rader, 23 x 2         | Rader, 23 x 2
        {48, "PF(R(16),3)",                  "PF(3,CT(4,4))"},                              // 2 x 2 x 2 x 2 x 3     | 2 x 2 x 2 x 2 x 3
        {49, "CT(7,7)",                      "CT(7,7)"},                                  // 7 x 7                 | 7 x 7
        {50, "PF(CT(5,5),2)",                "PF(2,CT(5,5))"},                            // 5 x 5 x 2             | 5 x 5 x 2
        {51, "PF(Rader(R(16)),3)",                  "PF(Rader(R(16)),3)"},                         // 17 x 3                | 3 x 17
        {52, "PF(Rader(PF(3,4)),4)",                "PF(4,Rader(PF(3,4))t)"},                      // 13 x 2 x 2            | 13 x 2 x 2
        {53, "Rader(PF(4,Rader(PF(3,4))))",  "Rader(PF(Rader(PF(3,4)),4))"},              // Rader, 2 x 2 x 13     | Rader, 13 x 2 x 2
        {54, "PF(2,CT(3,CT(3,3)))",          "PF(2,CT(3,CT(3,3)))"},                      // 2 x 3 x 3 x 3         | 3 x 3 x 3 x 2
        {55, "PF(11,5)",                     "PF(Rader(PF(5,2)),5)"},                     // 11 x 5                | 5 x 11
        {56, "PF(7,CT(4,2))",                "PF(7,CT(4,2))"},                            // 7 x 2 x 2 x 2         | 2 x 2 x 2 x 7
        {57, "PF(Rader(PF(CT(3,3),2)),3)",   "PF(Rader(CT(PF(3,2),3)),3)"},               // 19 x 3                | 3 x 19
        {58, "PF(2,Rader(PF(7,4)))",                "PF(2,Rader(PF(7,4)))"},                       // 2 x 29                | 29 x 2
        {59, "Rader(PF(Rader(PF(7,4)),2))",         "Rader(PF(Rader(PF(7,4)),2))"},                // Rader, 29 x 2         | Rader, 29 x 2
        {60, "PF(PF(3,5),4)",                "PF(PF(5,3),4)"},                            // 3 x 5 x 2 x 2         | 2 x 2 x 3 x 5
        {61, "Rader(PF(PF(3,5),4))",         "Rader(PF(5,CT(2,PF(3,2))))"},               // Rader, 3 x 5 x 2 x 2  | Rader, 5 x 2 x 3 x 2
        {62, "PF(Rader(PF(PF(3,2),5))p,2)",         "PF(2,Rader(PF(PF(3,2),5))p)"},                // 31 x 2                | 31 x 2
        {63, "PF(7,CT(3,3))",                "PF(7,CT(3,3))"},                            // 7 x 3 x 3             | 3 x 3 x 7
        {64, "R(64)",                        "R(64)"},                                    // 2 x 2 x 2 x 2 x 2 x 2 | 2 x 2 x 2 x 2 x 2 x 2
    };
    return rows;
}

// The Hartley kernels: size, whether the pairs come first, and the rule.
// With the pairs first the rule is that of the inverse kernel of the size,
// whose transposed run the pairs feed; otherwise it is the forward rule,
// whose bins the stage of pairs ends.  The comments give the stages in the
// order they act on the data, leftmost first.
const std::vector<HartleyRow>& hartley_rows()
{
    static const std::vector<HartleyRow> rows = {
        {2, false, "2"},                                      // direct, then pairs
        {3, false, "3"},                                      // direct, then pairs
        {4, false, "4"},                                      // 2 x 2, then pairs
        {5, false, "5"},                                      // direct, then pairs
        {6, false, "PF(3,2)"},                                // 3 x 2, then pairs
        {7, false, "7"},                                      // direct, then pairs
        {8, false, "R(8)"},                                   // 2 x 2 x 2, then pairs
        {9, false, "CT(3,3)"},                                // 3 x 3, then pairs
        {10, true,  "PF(5,2)"},                               // pairs, then 2 x 5
        {11, false, "11"},                                    // direct, then pairs
        {12, true,  "PF(4,3)"},                               // pairs, then 3 x 2 x 2
        {13, true,  "Rader(PF(3,4))t"},                    // pairs, then Rader, 3 x 2 x 2
        {14, true,  "PF(7,2)"},                               // pairs, then 2 x 7
        {15, true,  "PF(5,3)"},                               // pairs, then 3 x 5
        {16, false, "R(16)"},                                 // 2 x 2 x 2 x 2, then pairs
        {17, false, "Rader(R(16))"},                          // Rader, 2 x 2 x 2 x 2, then pairs
        {18, true,  "PF(CT(3,3),2)"},                         // pairs, then 2 x 3 x 3
        {19, false, "Rader(PF(CT(3,3),2))"},                  // Rader, 3 x 3 x 2, then pairs
        {20, true,  "PF(4,5)"},                               // pairs, then 5 x 2 x 2
        {21, false, "PF(7,3)"},                               // 7 x 3, then pairs
        {22, false, "PF(2,11)"},                              // 2 x 11, then pairs
        {23, true,  "Rader(PF(11,2))d"},                   // pairs, then Rader, 2 x 11
        {24, false, "PF(3,CT(4,2))"},                         // 3 x 2 x 2 x 2, then pairs
        {25, false, "CT(5,5)"},                               // 5 x 5, then pairs
        {26, false, "PF(Rader(PF(3,4)),2)"},                  // 13 x 2, then pairs
        {27, true,  "CT(3,CT(3,3))"},                         // pairs, then 3 x 3 x 3
        {28, true,  "PF(7,4)"},                               // pairs, then 2 x 2 x 7
        {29, false, "Rader(PF(7,4))"},                        // Rader, 7 x 2 x 2, then pairs
        {30, true,  "PF(PF(2,5),3)"},                         // pairs, then 3 x 5 x 2
        {31, true,  "Rader(PF(PF(3,2),5))p"},              // pairs, then Rader, 3 x 2 x 5
        {32, true,  "R(32)"},                                 // pairs, then 2 x 2 x 2 x 2 x 2
        {33, true,  "PF(Rader(PF(5,2)),3)"},                  // pairs, then 3 x 11
        {34, false, "PF(2,Rader(R(16)))"},                    // 2 x 17, then pairs
        {35, true,  "PF(7,5)"},                               // pairs, then 5 x 7
        {36, true,  "PF(CT(3,3),4)"},                         // pairs, then 2 x 2 x 3 x 3
        {37, true,  "Rader(PF(4,CT(3,3)))"},                  // pairs, then Rader, 4 x 3 x 3
        {38, false, "PF(Rader(PF(CT(3,3),2)),2)"},            // 19 x 2, then pairs
        {39, false, "PF(Rader(PF(3,4)),3)"},                  // 13 x 3, then pairs
        {40, true,  "PF(R(8),5)"},                            // pairs, then 5 x 2 x 2 x 2
        {41, false, "Rader(PF(5,8))"},                        // Rader, 5 x 2 x 2 x 2, then pairs
        {42, true,  "PF(7,PF(3,2))"},                         // pairs, then 2 x 3 x 7
        {43, true,  "Rader(PF(PF(7,2),3))p"},              // pairs, then Rader, 7 x 2 x 3
        {44, true,  "PF(Rader(PF(5,2)),4)"},                  // pairs, then 2 x 2 x 11
        {45, true,  "PF(CT(3,3),5)"},                         // pairs, then 5 x 3 x 3
        {46, true,  "PF(2,Rader(PF(11,2))d)"},             // pairs, then 23 x 2
        {47, false, "Rader(PF(Rader(PF(2,11)),2))"},          // Rader, 23 x 2, then pairs
        {48, true,  "PF(3,CT(4,4))"},                         // pairs, then 2 x 2 x 2 x 2 x 3
        {49, false, "CT(7,7)"},                               // 7 x 7, then pairs
        {50, false, "PF(CT(5,5),2)"},                         // 5 x 5 x 2, then pairs
        {51, false, "PF(Rader(R(16)),3)"},                    // 17 x 3, then pairs
        {52, false, "PF(Rader(PF(3,4)),4)"},                  // 13 x 2 x 2, then pairs
        {53, true,  "Rader(PF(Rader(PF(3,4)),4))"},           // pairs, then Rader, 13 x 2 x 2
        {54, true,  "PF(2,CT(3,CT(3,3)))"},                   // pairs, then 3 x 3 x 3 x 2
        {55, true,  "PF(Rader(PF(5,2)),5)"},                  // pairs, then 5 x 11
        {56, true,  "PF(7,CT(4,2))"},                         // pairs, then 2 x 2 x 2 x 7
        {57, false, "PF(Rader(PF(CT(3,3),2)),3)"},            // 19 x 3, then pairs
        {58, false, "PF(2,Rader(PF(7,4)))"},                  // 2 x 29, then pairs
        {59, false, "Rader(PF(Rader(PF(7,4)),2))"},           // Rader, 29 x 2, then pairs
        {60, true,  "PF(PF(5,3),4)"},                         // pairs, then 2 x 2 x 3 x 5
        {61, false, "Rader(PF(PF(3,5),4))"},                  // Rader, 3 x 5 x 2 x 2, then pairs
        {62, true,  "PF(2,Rader(PF(PF(3,2),5))p)"},        // pairs, then 31 x 2
        {63, false, "PF(7,CT(3,3))"},                         // 7 x 3 x 3, then pairs
        {64, true,  "R(64)"},                                 // pairs, then 2 x 2 x 2 x 2 x 2 x 2
    };
    return rows;
}

namespace {

struct Parser {
    const std::string& s;
    std::size_t at = 0;

    [[noreturn]] void fail(const char* what) const
    {
        throw std::invalid_argument("rule \"" + s + "\": " + what + " at " + std::to_string(at));
    }
    void expect(char c)
    {
        if (at >= s.size() || s[at] != c)
            fail("unexpected character");
        ++at;
    }
    int number()
    {
        if (at >= s.size() || !std::isdigit(static_cast<unsigned char>(s[at])))
            fail("number expected");
        int v = 0;
        while (at < s.size() && std::isdigit(static_cast<unsigned char>(s[at])))
            v = 10 * v + (s[at++] - '0');
        return v;
    }
    Rule rule()
    {
        Rule r;
        if (s.compare(at, 3, "CT(") == 0 || s.compare(at, 3, "PF(") == 0) {
            r.kind = s[at] == 'C' ? Rule::Kind::CT : Rule::Kind::PF;
            at += 3;
            r.first = std::make_shared<Rule>(rule());
            expect(',');
            r.second = std::make_shared<Rule>(rule());
            expect(')');
            r.size = r.first->size * r.second->size;
            return r;
        }
        if (s.compare(at, 6, "Chirp(") == 0) {
            at += 6;
            r.kind = Rule::Kind::Chirp;
            r.size = number();
            expect(',');
            r.first = std::make_shared<Rule>(rule());
            expect(')');
            return r;
        }
        if (s.compare(at, 6, "Rader(") == 0) {
            at += 6;
            r.kind = Rule::Kind::Rader;
            r.first = std::make_shared<Rule>(rule());
            expect(')');
            r.size = r.first->size + 1;
            r.variant = letters();
            if (r.variant.find_first_not_of("tpd") != std::string::npos)
                fail("unknown Rader variant");
            return r;
        }
        if (s.compare(at, 2, "R(") == 0) {
            at += 2;
            r.kind = Rule::Kind::R;
            r.size = number();
            expect(')');
            return r;
        }
        r.size = number();
        r.variant = letters();
        return r;
    }
    std::string letters()
    {
        std::string v;
        while (at < s.size() && std::isalpha(static_cast<unsigned char>(s[at])))
            v += s[at++];
        return v;
    }
};

}  // namespace

Rule Rule::parse(const std::string& text)
{
    Parser p{text};
    Rule r = p.rule();
    if (p.at != text.size())
        p.fail("trailing characters");
    return r;
}

std::string Rule::text() const
{
    switch (kind) {
    case Kind::Block: return std::to_string(size) + variant;
    case Kind::R: return "R(" + std::to_string(size) + ")";
    case Kind::Rader: return "Rader(" + first->text() + ")" + variant;
    case Kind::Chirp: return "Chirp(" + std::to_string(size) + "," + first->text() + ")";
    default:
        return std::string(kind == Kind::CT ? "CT(" : "PF(") + first->text() + "," + second->text() + ")";
    }
}

}  // namespace vtxgen
