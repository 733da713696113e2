// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/pattern_tables.h"

// Each row: numbers, lines, drawn numbers that the promise needs, pattern. The patterns are raw
// texts, as the character behind "[" is a single backslash.
namespace wheels::tables {

constinit const std::array<Wheel, 6> pairs{{
    {8, 6, 0, R"(ABACADBCBDCD)"},
    {10, 10, 0, R"(ABACADAEBCBDBECDCEDE)"},
    {12, 15, 0, R"(ABACADAEAFBCBDBEBFCDCECFDEDFEF)"},
    {14, 21, 0, R"(ABACADAEAFAGBCBDBEBFBGCDCECFCGDEDFDGEFEGFG)"},
    {16, 28, 0, R"(ABACADAEAFAGAHBCBDBEBFBGBHCDCECFCGCHDEDFDGDHEFEGEHFGFHGH)"},
    {18, 36, 0, R"(ABACADAEAFAGAHAIBCBDBEBFBGBHBICDCECFCGCHCIDEDFDGDHDIEFEGEHEIFGFHFIGHGIHI)"},
}};

constinit const std::array<Wheel, 6> pairsOfSix{{
    {8, 3, 0, R"(ABDACDBCD)"},
    {10, 6, 0, R"(ABEACEADEBCEBDECDE)"},
    {12, 10, 0, R"(ABFACFADFAEFBCFBDFBEFCDFCEFDEF)"},
    {14, 15, 0, R"(ABGACGADGAEGAFGBCGBDGBEGBFGCDGCEGCFGDEGDFGEFG)"},
    {16, 21, 0, R"(ABHACHADHAEHAFHAGHBCHBDHBEHBFHBGHCDHCEHCFHCGHDEHDFHDGHEFHEGHFGH)"},
    {18, 28, 0,
     R"(ABIACIADIAEIAFIAGIAHIBCIBDIBEIBFIBGIBHICDICEICFICGICHIDEIDFIDGIDHIEFIEGIEHIFGIFHIGHI)"},
}};

constinit const std::array<Wheel, 6> triplets{{
    {9, 3, 0, R"(ABACBC)"},
    {12, 6, 0, R"(ABACADBCBDCD)"},
    {15, 10, 0, R"(ABACADAEBCBDBECDCEDE)"},
    {18, 15, 0, R"(ABACADAEAFBCBDBEBFCDCECFDEDFEF)"},
    {21, 21, 0, R"(ABACADAEAFAGBCBDBEBFBGCDCECFCGDEDFDGEFEGFG)"},
    {24, 28, 0, R"(ABACADAEAFAGAHBCBDBEBFBGBHCDCECFCGCHDEDFDGDHEFEGEHFGFHGH)"},
}};

constinit const std::array<Wheel, 4> budget{{
    {9, 3, 0, R"(ABBCAC)"},
    {12, 4, 0, R"(ABCDBCAD)"},
    {15, 5, 0, R"(ABCDAEBEBC)"},
    {18, 8, 0, R"(ABCDEFACBDAFBCDE)"},
}};

}  // namespace wheels::tables
