#include "platform/unicode.h"

#include <gtest/gtest.h>

namespace {

TEST(UnicodeTest, EveryLengthAtItsBounds) {
    const struct {
        const wchar_t* Text;
        const char* Utf8;
        const char16_t* Utf16;
    } cases[] = {
        {L"", "", u""},
        {L"a\x7F", "a\x7F", u"a\x7F"},
        {L"\x80\x7FF", "\xC2\x80\xDF\xBF", u"\x80\x7FF"},
        {L"\x800\xD7FF\xE000\xFFFF", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF",
         u"\x800\xD7FF\xE000\xFFFF"},
        {L"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(ToUtf8(each.Text), each.Utf8);
        EXPECT_EQ(ToUtf16(each.Text), each.Utf16);
    }
    EXPECT_EQ(ToUtf8(std::wstring(2, L'\0')), std::string(2, '\0'));
}

TEST(UnicodeTest, SurrogatesCountAsPairsOnly) {
    const std::wstring high{wchar_t{0xD83D}};
    const std::wstring low{wchar_t{0xDE00}};
    EXPECT_EQ(ToUtf8(high + low), "\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf16(high + low), u"\U0001F600");
    EXPECT_EQ(ToUtf16(low + L'x'), u"\xFFFDx");
    EXPECT_EQ(ToUtf8(low + high), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(high + L'x'), "\xEF\xBF\xBDx");
    EXPECT_EQ(ToUtf8(high + high + low), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
    EXPECT_EQ(ToUtf8(high), "\xEF\xBF\xBD");
}

}  // namespace
