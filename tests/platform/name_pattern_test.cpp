#include "platform/name_pattern.h"

#include <string>

#include <gtest/gtest.h>

namespace {

TEST(NamePattern, StandsForNames) {
    const struct {
        const wchar_t* Pattern;
        const wchar_t* Name;
        bool Matches;
    } cases[] = {
        {L"*.lng", L"a.lng", true},
        {L"*.lng", L".LNG", true},
        {L"*.lng", L"a.lngx", false},
        {L"*.lng", L"a.lng.lng", true},
        {L"*.lng", L"lng", false},
        {L"*", L"", true},
        {L"", L"", true},
        {L"", L"a", false},
        {L"?", L"", false},
        {L"a?c", L"ABC", true},
        {L"a?c", L"ac", false},
        {L"*ab*ab", L"abab", true},
        {L"*ab*ab", L"aab", false},
        {L"a*b*c", L"axbxbxc", true},
        {L"a*b*c", L"axbxbx", false},
        {L"***", L"x", true},
        {L"x**", L"x", true},
        {L"*?*?", L"x", false},
    };
    for (const auto& each : cases)
        EXPECT_EQ(MatchesPattern(each.Name, each.Pattern), each.Matches)
            << each.Pattern << L" on " << each.Name;
}

TEST(NamePattern, TakesNoTimeForManyStars) {
    std::wstring pattern;
    for (int i = 0; i < 100; ++i) pattern += L"*a";
    EXPECT_FALSE(MatchesPattern(std::wstring(2000, L'a'), pattern + L"b"));
}

}  // namespace
