#include "platform/name_pattern.h"

#include <string>

#include <gtest/gtest.h>

namespace {

/// Of a case such as "*.lng a.lng", the pattern and the name behind the blank.
bool Matches(std::wstring_view test) {
    const std::size_t blank = test.find(L' ');
    return MatchesPattern(test.substr(blank + 1), test.substr(0, blank));
}

TEST(NamePattern, StandsForNames) {
    for (const wchar_t* test : {L"*.lng a.lng", L"*.lng .LNG", L"*.lng a.lng.lng", L"* ", L" ", L"a?c ABC",
                                L"*ab*ab abab", L"a*b*c axbxbxc", L"*** x", L"x** x"})
        EXPECT_TRUE(Matches(test)) << testing::PrintToString(test);
    for (const wchar_t* test :
         {L"*.lng a.lngx", L"*.lng lng", L" a", L"? ", L"a?c ac", L"*ab*ab aab", L"a*b*c axbxbx", L"*?*? x"})
        EXPECT_FALSE(Matches(test)) << testing::PrintToString(test);
}

TEST(NamePattern, TakesNoTimeForManyStars) {
    std::wstring pattern;
    for (int i = 0; i < 100; ++i) pattern += L"*a";
    EXPECT_FALSE(MatchesPattern(std::wstring(2000, L'a'), pattern + L"b"));
}

}  // namespace
