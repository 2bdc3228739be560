#include "platform/text.h"

#include <gmock/gmock.h>

#include "tests/fakes/fake_windows_info.h"

namespace {

using std::string_literals::operator""s;
using testing::ElementsAre;

/// A string of wide characters, which Windows writes in UTF-16 and other hosts in UTF-32, as the literals are.
std::wstring Decoded(const std::string& bytes) {
    return DecodeText({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()},
                      TFakeWindowsInfo());
}

TEST(TDecodeText, ByteOrderMarkSelectsTheEncoding) {
    EXPECT_EQ(Decoded(""), L"");
    EXPECT_EQ(Decoded("\xE9t\xE9"), L"\u00E9t\u00E9");  // the code page of the fake is Latin-1
    EXPECT_EQ(Decoded("\xEF\xBB"), L"\u00EF\u00BB");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"), L"");
    EXPECT_EQ(Decoded("\xEF\xBB\xBF\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80!"), L"\u00E9\u20AC\U0001F600!");
    EXPECT_EQ(Decoded("\xFF\xFE\xE9\0\xAC\x20\x3D\xD8\0\xDE"s), L"\u00E9\u20AC\U0001F600");
    EXPECT_EQ(Decoded("\xFE\xFF\0\xE9\x20\xAC\xD8\x3D\xDE\0"s), L"\u00E9\u20AC\U0001F600");
    EXPECT_EQ(Decoded("\xEF\xBB\xBFx\0y"s), L"x\0y"s);
}

TEST(TDecodeText, MalformedUtf8BecomesReplacementCharacters) {
    const struct {
        const char* Bytes;
        const wchar_t* Text;
    } kCases[] = {
        {"a\x80z", L"a\uFFFDz"},                            // a trail without lead
        {"a\xC3z", L"a\uFFFDz"},                            // a lead without trail
        {"a\xE2\x82", L"a\uFFFD"},                          // cut off at the end
        {"\xE2\x82\xE2\x82\xAC", L"\uFFFD\u20AC"},          // cut off by the next one
        {"\xC0\xAF", L"\uFFFD\uFFFD"},                      // longer than needed
        {"\xE0\x80\xAF", L"\uFFFD\uFFFD\uFFFD"},            // the same
        {"\xF0\x8F\xBF\xBF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},  // the same
        {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},            // a surrogate
        {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond the last code point
        {"\xF4\x8F\xBF\xBD\xFF", L"\U0010FFFD\uFFFD"},      // the last one that is not
    };
    for (const auto& each : kCases) EXPECT_EQ(Decoded("\xEF\xBB\xBF"s + each.Bytes), each.Text);
}

TEST(TDecodeText, MalformedUtf16BecomesReplacementCharacters) {
    EXPECT_EQ(Decoded("\xFF\xFEx\0\x3D"s), L"x");                    // half a unit
    EXPECT_EQ(Decoded("\xFF\xFE\x3D\xD8"), L"\uFFFD");               // a high surrogate at the end
    EXPECT_EQ(Decoded("\xFF\xFE\x3D\xD8x\0"s), L"\uFFFDx");          // without its low one
    EXPECT_EQ(Decoded("\xFF\xFE\0\xDE\x3D\xD8"s), L"\uFFFD\uFFFD");  // the wrong way round
    EXPECT_EQ(Decoded("\xFF\xFE\x3D\xD8\x3D\xD8\0\xDE"s), L"\uFFFD\U0001F600");
}

TEST(TLineReader, EndsLinesAsEverySystemDoes) {
    const auto lines = [](std::wstring_view text) {
        std::vector<std::wstring> all;
        TLineReader reader(text);
        for (std::wstring_view line; reader.Next(line);) all.emplace_back(line);
        return all;
    };
    EXPECT_THAT(lines(L""), ElementsAre());
    EXPECT_THAT(lines(L"\r\n"), ElementsAre(L""));
    EXPECT_THAT(lines(L"a\r\nb\nc\rd"), ElementsAre(L"a", L"b", L"c", L"d"));
    EXPECT_THAT(lines(L"\n\ra\r\r\n\n"), ElementsAre(L"", L"", L"a", L"", L""));
    EXPECT_THAT(lines(std::wstring_view(L"a\0b\nc", 5)), ElementsAre(std::wstring(L"a\0b", 3), L"c"));
}

TEST(TText, TrimsControlCharactersAndBlanks) {
    EXPECT_EQ(Trim(L" \t\x01 a b \r\n"), L"a b");
    EXPECT_EQ(Trim(L"\u00A0a"), L"\u00A0a");
    EXPECT_EQ(Trim(std::wstring_view(L"\0 \0", 3)), L"");
}

TEST(TText, ComparesWithoutCase) {
    const struct {
        const wchar_t* A;
        const wchar_t* B;
        bool Same;
    } kCases[] = {
        {L"", L"", true},
        {L"AZ@[", L"az@[", true},
        {L"@[", L"`{", false},
        {L"\u00C4\u00DE", L"\u00E4\u00FE", true},
        {L"\u00D7\u00DF", L"\u00F7\u00FF", false},  // signs and the sharp s are nobody's capitals
        {L"\u0100\u012E\u0132\u0139\u0147\u014A\u0176\u0178\u017D",
         L"\u0101\u012F\u0133\u013A\u0148\u014B\u0177\u00FF\u017E", true},
        {L"\u0130", L"i", false},
        {L"\u0138", L"\u0139", false},
        {L"\u0148", L"\u0149", false},
        {L"\u0386\u0388\u038A\u038C\u038E\u038F\u0391\u03A9\u03AB",
         L"\u03AC\u03AD\u03AF\u03CC\u03CD\u03CE\u03B1\u03C9\u03CB", true},
        {L"\u03C2\u03A3", L"\u03C3\u03C2", true},
        {L"\u0401\u0410\u042F\u0460\u048A\u04C0\u04C1\u04CD\u04D0\u052E",
         L"\u0451\u0430\u044F\u0461\u048B\u04CF\u04C2\u04CE\u04D1\u052F", true},
        {L"\u0482", L"\u0483", false},
        {L"abc", L"ab", false},
        {L"\u4E00", L"\u4E20", false},
    };
    const TTextHash hash;
    for (const auto& each : kCases) {
        EXPECT_EQ(SameText(each.A, each.B), each.Same) << testing::PrintToString(std::wstring(each.A));
        EXPECT_EQ(hash(each.A) == hash(each.B), each.Same);
    }
}

TEST(TText, ParsesWholeDecimalNumbersOnly) {
    const struct {
        const wchar_t* Text;
        std::optional<std::int32_t> Number;
    } kCases[] = {
        {L"0", 0},
        {L"+7", 7},
        {L"-0012", -12},
        {L"2147483647", 2147483647},
        {L"2147483648", {}},
        {L"-2147483648", -2147483647 - 1},
        {L"-2147483649", {}},
        {L"99999999999999999999999999", {}},
        {L"", {}},
        {L"-", {}},
        {L"+-1", {}},
        {L" 1", {}},
        {L"1 ", {}},
        {L"0x10", {}},
        {L"1.5", {}},
        {L"\u0661", {}},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(ParseInteger(each.Text), each.Number) << testing::PrintToString(std::wstring(each.Text));
}

}  // namespace
