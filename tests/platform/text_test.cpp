#include "platform/text.h"

#include <cstring>

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
    const std::pair<std::string, std::wstring> cases[] = {
        {"", L""},
        {"\xE9t\xE9", L"\u00E9t\u00E9"},  // the code page of the fake is Latin-1
        {"\xEF\xBB", L"\u00EF\u00BB"},
        {"\xEF\xBB\xBF", L""},
        {"\xEF\xBB\xBF\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80!", L"\u00E9\u20AC\U0001F600!"},
        {"\xFF\xFE\xE9\0\xAC\x20\x3D\xD8\0\xDE"s, L"\u00E9\u20AC\U0001F600"},
        {"\xFE\xFF\0\xE9\x20\xAC\xD8\x3D\xDE\0"s, L"\u00E9\u20AC\U0001F600"},
        {"\xEF\xBB\xBFx\0y"s, L"x\0y"s},
        {"\xFF\xFEx\0\x3D"s, L"x"},  // half a unit
        // Surrogates that are no pair: at the end, without the low one, the wrong way round, twice.
        {"\xFF\xFE\x3D\xD8", L"\uFFFD"},
        {"\xFF\xFE\x3D\xD8x\0"s, L"\uFFFDx"},
        {"\xFF\xFE\0\xDE\x3D\xD8"s, L"\uFFFD\uFFFD"},
        {"\xFF\xFE\x3D\xD8\x3D\xD8\0\xDE"s, L"\uFFFD\U0001F600"},
    };
    for (const auto& [bytes, text] : cases) EXPECT_EQ(Decoded(bytes), text);
}

TEST(TDecodeText, MalformedUtf8BecomesReplacementCharacters) {
    const std::pair<const char*, const wchar_t*> cases[] = {
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
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(Decoded("\xEF\xBB\xBF"s + bytes), text);
        const std::vector<std::uint8_t> unmarked(bytes, bytes + std::strlen(bytes));
        EXPECT_EQ(DecodeUtf8OrAnsi(unmarked, TFakeWindowsInfo()).Encoding, TTextEncoding::Ansi) << bytes;
    }
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
    const TTextHash hash;
    const std::pair<const wchar_t*, const wchar_t*> same[] = {
        {L"", L""},
        {L"AZ@[", L"az@["},
        {L"\u00C4\u00DE", L"\u00E4\u00FE"},
        {L"\u0100\u012E\u0132\u0139\u0147\u014A\u0176\u0178\u017D",
         L"\u0101\u012F\u0133\u013A\u0148\u014B\u0177\u00FF\u017E"},
        {L"\u0386\u0388\u038A\u038C\u038E\u038F\u0391\u03A9\u03AB\u03C2\u03A3",
         L"\u03AC\u03AD\u03AF\u03CC\u03CD\u03CE\u03B1\u03C9\u03CB\u03C3\u03C2"},
        {L"\u0401\u0410\u042F\u0460\u048A\u04C0\u04C1\u04CD\u04D0\u052E",
         L"\u0451\u0430\u044F\u0461\u048B\u04CF\u04C2\u04CE\u04D1\u052F"}};
    for (const auto& [a, b] : same) {
        EXPECT_TRUE(SameText(a, b)) << testing::PrintToString(std::wstring(a));
        EXPECT_EQ(hash(a), hash(b));
    }
    // Among them signs and the sharp s, which are nobody's capitals.
    for (const std::wstring_view pair : {L"@`", L"[{", L"\u00D7\u00F7", L"\u00DF\u00FF", L"\u0130i",
                                         L"\u0138\u0139", L"\u0148\u0149", L"\u0482\u0483", L"\u4E00\u4E20"})
        EXPECT_FALSE(SameText(pair.substr(0, 1), pair.substr(1))) << testing::PrintToString(pair);
    EXPECT_FALSE(SameText(L"abc", L"ab"));
}

TEST(TText, ParsesWholeDecimalNumbersOnly) {
    for (const std::int32_t number : {0, 7, -12, INT32_MAX, INT32_MIN})
        EXPECT_EQ(ParseInteger(std::to_wstring(number)), number);
    EXPECT_EQ(ParseInteger(L"+7"), 7);
    EXPECT_EQ(ParseInteger(L"-0012"), -12);
    for (const wchar_t* text : {L"2147483648", L"-2147483649", L"99999999999999999999999999", L"", L"-",
                                L"+-1", L" 1", L"1 ", L"0x10", L"1.5", L"\u0661"})
        EXPECT_EQ(ParseInteger(text), std::nullopt) << testing::PrintToString(std::wstring(text));
    for (const std::int64_t bits : {0LL, 2LL, 2147483648LL, 4294967295LL, -1LL, -2147483648LL})
        EXPECT_EQ(ParseBits(std::to_wstring(bits)), static_cast<std::uint32_t>(bits)) << bits;
    for (const wchar_t* text : {L"4294967296", L"-2147483649", L"", L"0x2"})
        EXPECT_EQ(ParseBits(text), std::nullopt) << testing::PrintToString(std::wstring(text));
}

}  // namespace
