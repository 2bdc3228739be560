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

}  // namespace
