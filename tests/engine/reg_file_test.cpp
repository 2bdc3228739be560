#include "engine/reg_file.h"

#include <random>

#include <gtest/gtest.h>

#include "platform/unicode.h"
#include "tests/fakes/fake_windows_info.h"

namespace {

using enum TRegFileFault;

const std::string kVersion5 = "Windows Registry Editor Version 5.00\n";

std::variant<TChangeSet, TRegFileError> Read(const TBytes& bytes) {
    return ReadRegFile(bytes, TFakeWindowsInfo());
}

std::variant<TChangeSet, TRegFileError> Read(const std::string& text) {
    return Read(TBytes(text.begin(), text.end()));
}

/// A file of 16 bits, in either byte order.
TBytes Wide(const std::string& text, bool highFirst = false) {
    TBytes bytes = highFirst ? TBytes{0xFE, 0xFF} : TBytes{0xFF, 0xFE};
    for (const char c : text) {
        bytes.insert(bytes.end(), {0, 0});
        bytes[bytes.size() - (highFirst ? 1 : 2)] = static_cast<std::uint8_t>(c);
    }
    return bytes;
}

/// The operations on the registry, each as "+key", "-key", "key|value=type:bytes" or "key|value=-".
std::string Said(const std::variant<TChangeSet, TRegFileError>& read) {
    if (const auto* error = std::get_if<TRegFileError>(&read))
        return "line " + std::to_string(error->Line) + ": " + std::to_string(static_cast<int>(error->Fault));
    std::string said;
    for (const TOperation& operation : std::get<TChangeSet>(read)) {
        const auto& target = std::get<TRegistryTarget>(operation.Target);
        const auto& effect = std::get<TRegistryEffect>(operation.Effect);
        if (!said.empty()) said += ' ';
        if (target.IsKey) said += effect.Action == TRegAction::DeleteKey ? '-' : '+';
        said += std::to_string(static_cast<std::uint32_t>(target.Root) & 0xF) + "\\" + ToUtf8(target.Key);
        if (target.IsKey) continue;
        said += "|" + ToUtf8(target.ValueName) + "=";
        if (effect.Action == TRegAction::DeleteValue) said += '-';
        if (!effect.Value) continue;
        char digits[12] = {};
        std::snprintf(digits, sizeof digits, "%x:", effect.Value->Type);
        said += digits;
        for (const std::uint8_t byte : effect.Value->Bytes) {
            std::snprintf(digits, sizeof digits, "%02x", byte);
            said += digits;
        }
    }
    return said;
}

TEST(TRegFile, ReadsWhatRegistryEditorsRead) {
    const std::pair<std::string, std::string> kCases[] = {
        {"", ""},
        {"; no key\n# nor here\n// nor here\n\t \n-----\nREGEDIT4\n", ""},
        {"[HKEY_CURRENT_USER\\A]", "+1\\A"},
        {"[HKCR\\a]\r[hklm]\n[HKU\\]\r\n\r\n[hkcc\\x\\\\\\y\\\\] ;[\n[HKEY_dyn_data\\]b]",
         "+0\\a +2\\ +3\\ +5\\x\\y +6\\]b"},
        {"[-HKCU\\A\\]\n\"lost\"=dword:1\n[HKCU\\A ]", "-1\\A +1\\A "},
        {"[HKCU\\A]\n\"v\"=-\n", "+1\\A 1\\A|v=-"},
        {"[HKCU\\A]\n\"v\"= - ;c\n@ =\tdword: 1a ;c\n\"\"=dword:FFFFFFFF",
         "1\\A|v=- 1\\A|=4:1a000000 1\\A|=4:ffffffff"},
        {"[HKCU\\A]\n \"q\\\"\\\\=]\" = \"a;\\\\\\\"\\r\\n\\q\"  ; c\n",
         "1\\A|q\"\\=]=1:61003b005c0022000d000a0071000000"},
        {"[HKCU\\A]\n\"v\"=\"a\r\nb\"\n", "1\\A|v=1:61000d000a0062000000"},
        {"[HKCU\\A]\n\"v\"=hex:\n\"w\"=hex(0): ;c\n\"x\"=hex(ffffffff):1, 0x2,\n",
         "1\\A|v=3: 1\\A|w=0: 1\\A|x=ffffffff:0102"},
        {"[HKCU\\A]\n\"v\"=hex(b):01,\\ ;c\n\n  ;c\n\t02,3 ; c\n\"w\"=hex:aa,\\",
         "1\\A|v=b:010203 1\\A|w=3:aa"},
        {"[HKCU\\A]\n\"\xE4\"=\"\xE4\"", "1\\A|\xC3\xA4=1:e4000000"},
        // Bytes in a file of 8 bits are text of 8 bits, and its end is added.
        {"[HKCU\\A]\n\"v\"=hex(2):e4,00\n\"w\"=hex(7):41\n\"x\"=hex(1):\n\"y\"=hex(4):41",
         "1\\A|v=2:e4000000 1\\A|w=7:41000000 1\\A|x=1: 1\\A|y=4:41"},
    };
    for (const auto& [text, expected] : kCases)
        for (const std::string& header : {kVersion5, std::string(" REGEDIT4\r\n")})
            EXPECT_EQ(Said(Read(header + text)), expected) << header + text;

    const std::string wide =
        kVersion5 + "[HKCU\\A]\n\"v\"=hex(2):41,00\n\"w\"=hex(7):41,00,00,00\n\"x\"=hex(1):41";
    for (const bool highFirst : {false, true})
        EXPECT_EQ(Said(Read(Wide(wide, highFirst))), "1\\A|v=2:41000000 1\\A|w=7:41000000 1\\A|x=1:41");
    EXPECT_EQ(Said(Read("\xEF\xBB\xBF" + kVersion5 + "[HKCU\\\xC3\xA4]")), "+1\\\xC3\xA4");
}

TEST(TRegFile, RefusesWhatIsBroken) {
    const std::tuple<std::string, std::size_t, TRegFileFault> kCases[] = {
        {"[HKCU\\A", 2, BadKey},
        {"[ HKCU\\A]", 2, BadKey},
        {"[- HKCU\\A]", 2, BadKey},
        {"[-HKCU\\]", 2, BadKey},
        {"[HKCU\\\\A]", 2, BadKey},
        {"[HKXX\\A]", 2, BadKey},
        {"[]", 2, BadKey},
        {"\n\"v\"=-", 3, NoKey},
        {"[HKCU\\A]\n\"v=-", 3, BadName},
        {"[HKCU\\A]\n\"v\"-", 3, BadName},
        {"[HKCU\\A]\n@x=-", 3, BadName},
        {"[HKCU\\A]\n\"v\"=", 3, BadData},
        {"[HKCU\\A]\n\"v\"=--", 3, BadData},
        {"[HKCU\\A]\n\"v\"=1", 3, BadData},
        {"[HKCU\\A]\n\"v\"=\"a", 3, BadData},
        {"[HKCU\\A]\n\"v\"=\"a\\", 3, BadData},
        {"[HKCU\\A]\n\"v\"=\"a\\0\"", 3, BadData},
        {"[HKCU\\A]\n\"v\"=\"a\"b", 3, BadData},
        {"[HKCU\\A]\n\"v\"=\"a\n\"w\"=\"b\"", 3, BadData},
        {"[HKCU\\A]\n\"v\"=DWORD:1", 3, BadData},
        {"[HKCU\\A]\n\"v\"=dword:", 3, BadData},
        {"[HKCU\\A]\n\"v\"=dword:xyz", 3, BadData},
        {"[HKCU\\A]\n\"v\"=dword:000000001", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex(100000000):1", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex():1", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:1,,2", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:100", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:1 2", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:1\\\n2", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:1,\\\n\"w\"=-", 3, BadData},
        {"[HKCU\\A]\n\"v\"=hex:1,\n2", 4, BadLine},
        {"v=-", 2, BadLine},
        {std::string("\n[HKCU\\A\0]", 10), 3, Unreadable},
        {std::string("[HKCU\\A]\n@=\"a\n\0\"", 17), 3, BadData},
        {";Quilltune setting \"a\" soon", 2, BadNote},
        {"[HKCU\\A]\n\"v\"=-\n;Quilltune if-present", 4, BadNote},
        {";Quilltune left key\n[HKCU\\A]\n;Quilltune if-present", 4, BadNote},
        {";Quilltune left key dword:1\n", 2, BadNote},
        {";Quilltune exact\n[HKCU\\A]", 3, BadNote},
        {";Quilltune key \"HKCU\\\\A\"\n[HKCU\\A]", 3, BadNote},
        {";Quilltune parameter 0x1 get 0x2 to block", 2, BadNote},
        {";Quilltune parameter 0x1 get 0x2 to number 4294967296", 2, BadNote},
        {";Quilltune parameter 0x1 get 0x2 to number 1 left block 01", 2, BadNote},
        {";Quilltune service \"s\" to start 5 running", 2, BadNote},
        {";Quilltune service \"s\" to none", 2, BadNote},
        {";Quilltune preference \"p\" to \"1", 2, BadNote},
    };
    for (const auto& [text, line, fault] : kCases)
        EXPECT_EQ(std::get<1>(Read(kVersion5 + text)), (TRegFileError{line, fault})) << text;
    for (const char* header : {"", "\nREGEDIT4\n", "REGEDIT\n", "REGEDIT4 \n", "regedit4\n", "\xFF\xFE"})
        EXPECT_EQ(std::get<1>(Read(std::string(header))), (TRegFileError{1, NoHeader})) << header;
    EXPECT_EQ(std::get<1>(Read("\xEF\xBB\xBF" + kVersion5 + "[HKCU\\\xC3]")), (TRegFileError{1, Unreadable}));
}

/// Sets of all that a file can hold, of few hostile texts, so that keys and settings meet.
class TRandomSet {
  public:
    explicit TRandomSet(unsigned seed) : FRandom(seed) {}

    TChangeSet Set(std::size_t size) {
        TChangeSet set(size);
        for (TOperation& operation : set) {
            operation.Restart = static_cast<TRestart>(Pick(3));
            if (Pick(2) == 0) operation.Setting = Text(true);
            switch (Pick(6)) {
                case 0:
                    Parameter(operation);
                    break;
                case 1:
                    operation.Target = TServiceTarget{Text(true)};
                    operation.Effect = Status();
                    Leave<TServiceContent>(operation, [&] { return Status(); });
                    break;
                case 2:
                    operation.Target = TPreferenceTarget{Text(true)};
                    operation.Effect = Pick(3) == 0 ? TPreferenceContent() : Text(true);
                    Leave<TPreferenceContent>(operation, [&] { return Text(true); });
                    break;
                default:
                    Registry(operation);
            }
        }
        return set;
    }

  private:
    unsigned Pick(unsigned count) { return static_cast<unsigned>(FRandom() % count); }

    template <typename TContent, typename TMake>
    void Leave(TOperation& operation, const TMake& make) {
        if (Pick(3) == 0) operation.Left = TContent();
        if (Pick(3) == 0) operation.Left = TContent(make());
    }

    std::wstring Text(bool withNul) {
        constexpr std::wstring_view kPieces[] = {L"a",  L"\\\\", L"\\", L"\"", L"]",      L"[",      L"=",
                                                 L";",  L"\r",   L"\n", L" ",  L"\xD83D", L"\xFEFF", L"-",
                                                 L"\t", L"#",    L"@",  L"0",  L"\x2028", L"\xE4",   L"\x7F"};
        std::wstring text;
        for (unsigned count = Pick(5); count > 0; --count) text += kPieces[Pick(std::size(kPieces))];
        if (withNul && Pick(9) == 0) text.push_back(L'\0');
        return text;
    }
    std::wstring Key() {
        constexpr const wchar_t* kKeys[] = {L"",         L"K",      L"k]\\[",  L"-\\HKCU]",
                                            L" ;\"=\\ ", L"\r\\\n", L"A\xD83D"};
        return kKeys[Pick(std::size(kKeys))];
    }
    TBytes Bytes(unsigned size) {
        TBytes bytes(size);
        for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(Pick(2) * Pick(256));
        return bytes;
    }
    TRawValue Value() {
        if (Pick(3) == 0) return *RawValueOf({TRegDataType::String, Text(true)});
        return {Pick(9) == 0 ? static_cast<std::uint32_t>(FRandom()) : Pick(12),
                Bytes(Pick(Pick(9) == 0 ? 300 : 7))};
    }
    TServiceStatus Status() { return {static_cast<TServiceStartType>(Pick(5)), Pick(2) == 0}; }

    void Parameter(TOperation& operation) {
        TParameterTarget target{static_cast<std::uint32_t>(FRandom()), Pick(0x10000), Pick(2) == 0};
        target.BlockSize = Pick(2) == 0 ? 0 : 1 + Pick(512);
        const auto data = [&]() -> TSpiData {
            if (target.BlockSize == 0) return static_cast<std::uint32_t>(FRandom());
            return Bytes(static_cast<unsigned>(target.BlockSize));
        };
        operation.Target = target;
        operation.Effect = data();
        Leave<TParameterContent>(operation, data);
    }

    void Registry(TOperation& operation) {
        constexpr TRootKey kRoots[] = {TRootKey::ClassesRoot, TRootKey::CurrentUser,   TRootKey::LocalMachine,
                                       TRootKey::Users,       TRootKey::CurrentConfig, TRootKey::DynData};
        TRegistryTarget target{kRoots[Pick(4) == 0 ? Pick(6) : 1], Key(), {}, Pick(3) == 0};
        TRegistryEffect effect;
        if (target.IsKey) {
            if (Pick(2) == 0 && !target.Key.empty()) effect.Action = TRegAction::DeleteKey;
        } else {
            target.ValueName = Text(false);
            if (Pick(3) == 0)
                effect.Action = TRegAction::DeleteValue;
            else
                effect.Value = Value();
        }
        if (Pick(2) == 0) {
            TRegistryContent left{.HasKey = Pick(2) == 0};
            if (Pick(2) == 0) left.Value = Value();
            operation.Left = left;
        }
        operation.Target = target;
        operation.Effect = effect;
    }

    std::mt19937 FRandom;
};

TEST(TRegFile, HoldsEverySet) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        const TChangeSet set = TRandomSet(seed).Set(seed == 0 ? 10'000 : seed % 12);
        const auto read = Read(WriteRegFile(set));
        ASSERT_TRUE(std::holds_alternative<TChangeSet>(read)) << seed << " " << Said(read);
        EXPECT_TRUE(std::get<TChangeSet>(read) == set) << seed;
    }
}

}  // namespace
