#include "ui/cut_text.h"

#include <gtest/gtest.h>

namespace {

TEST(TCutText, KeepsWholeWordsOfWhatIsTooLong) {
    const std::wstring text = L"one two three";
    for (const auto& [most, cut] : {std::pair(13u, L"one two three"),
                                    {12u, L"one two\u2026"},
                                    {8u, L"one two\u2026"},
                                    {7u, L"one\u2026"},
                                    {4u, L"one\u2026"},
                                    {3u, L"\u2026"}})
        EXPECT_EQ(CutAtWord(text, [most = most](const std::wstring& each) { return each.size() <= most; }),
                  cut)
            << most;
}

TEST(TCutText, KeepsTheEndThatSaysMost) {
    for (const auto& [text, most, cut] : {std::tuple(L"caption (a, b)", 14u, L"caption (a, b)"),
                                          {L"caption (a, b)", 13u, L"capti\u2026 (a, b)"},
                                          {L"two words (a) (b)", 13u, L"two\u2026 (a) (b)"},
                                          {L"caption (a, b)", 3u, L"\u2026 (a, b)"},
                                          {L"caption (a) b", 8u, L"caption\u2026"},
                                          {L"HKEY_USERS\\key\\value", 12u, L"HKEY_\u2026\\value"},
                                          {L"HKEY_USERS", 6u, L"HKEY_\u2026"},
                                          {L"a)", 1u, L"\u2026"},
                                          {L"(a) (b)", 4u, L"\u2026 (b)"}})
        EXPECT_EQ(CutInside(text, [most = most](const std::wstring& each) { return each.size() <= most; }),
                  cut)
            << most;
}

}  // namespace
