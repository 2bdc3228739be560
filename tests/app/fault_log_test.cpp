#include "app/fault_log.h"

#include <new>

#include <gmock/gmock.h>

#include "platform/faults.h"
#include "tests/fakes/fake_system.h"

namespace {

using testing::HasSubstr;

constexpr const wchar_t* kLog = L"C:\\Tools\\Error_Log.txt";

const std::string kMark = "\xEF\xBB\xBF";

/// A fault of the program's own, without a namespace to be seen by.
struct TOwnFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// One whose name says more than where it stands.
template <typename T>
struct TOddFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class TFaultLogTest : public testing::Test {
  protected:
    TFaultLogTest() {
        Fake.Windows.SetProgramFile(L"C:\\Tools\\Quilltune.exe");
        TFakeVersionResource resource;
        resource.Texts[L"\\StringFileInfo\\040904B0\\FileVersion"] = L"1.2.3.4";
        resource.Blocks[L"\\VarFileInfo\\Translation"] = {0x09, 0x04, 0xB0, 0x04};
        Fake.Windows.PutVersionResource(L"C:\\Tools\\Quilltune.exe", resource);
        Fake.Files.PutFolder(L"C:\\Tools");
    }

    template <typename T>
    void Throw(const T& fault) {
        Log.Add(std::make_exception_ptr(fault));
    }
    std::string Text() const { return Fake.Files.Text(kLog); }
    static std::string Block(const std::string& type, const std::string& message) {
        return "01.02.2010 03:04:05\r\nApplication=C:\\Tools\\Quilltune.exe\r\nVersion=1.2.3.4\r\n"
               "OS Info=Windows 7\r\n64bit=No\r\nException Type=" +
               type + "\r\nError Message=" + message + "\r\n\r\n";
    }

    TFakeSystem Fake;
    TFaultLog Log{Fake.System};
};

TEST_F(TFaultLogTest, EveryFaultAppendsItsBlock) {
    Throw(EConvertError(L"12a"));
    Throw(std::bad_alloc());
    Log.Add(L"EAccessViolation", L"at 1234");
    EXPECT_EQ(Text(), kMark + Block("EConvertError", "'12a' is not a valid integer value") +
                          Block("std::bad_alloc", "std::bad_alloc") + Block("EAccessViolation", "at 1234"));
}

TEST_F(TFaultLogTest, NamesAndMessagesAreReadable) {
    const std::pair<std::exception_ptr, const char*> faults[] = {
        // In one line of UTF-8, whatever the message holds.
        {std::make_exception_ptr(std::runtime_error("one\r\ntwo\nthree \xF0\x9F\x98\x80 \xE4")),
         "Exception Type=std::runtime_error\r\nError Message=one  two three \xF0\x9F\x98\x80 "
         "\xEF\xBF\xBD\r\n"},
        {std::make_exception_ptr(std::out_of_range("x")), "Exception Type=std::out_of_range\r\n"},
        {std::make_exception_ptr(TOwnFault("x")), "Exception Type=(anonymous namespace)::TOwnFault\r\n"},
        {std::make_exception_ptr(TOddFault<int>("x")), "TOddFaultIiE"},
        {std::make_exception_ptr(5), "Exception Type=unknown\r\nError Message=\r\n"},
        {std::make_exception_ptr(std::string("x")), "Exception Type=unknown\r\nError Message=\r\n"},
    };
    for (const auto& [fault, line] : faults) {
        Fake.Files.Remove(kLog);
        Log.Add(fault);
        EXPECT_THAT(Text(), HasSubstr(line));
    }
}

TEST_F(TFaultLogTest, TheSystemIsDescribedAsItIs) {
    Fake.Windows.SetVersion({.PlatformId = 2, .Major = 5, .Minor = 0});
    Fake.Windows.SetWow64(true);
    Fake.Windows.SetProgramFile(L"C:\\Tools\\B\u00E4r.exe");  // has no version resource
    Throw(std::runtime_error("x"));
    EXPECT_THAT(Text(), HasSubstr("Application=C:\\Tools\\B\xC3\xA4r.exe\r\nVersion=Unknown\r\n"
                                  "OS Info=Windows 2000\r\n64bit=Yes\r\n"));
}

TEST_F(TFaultLogTest, ALogIsContinuedAsItIsWritten) {
    std::string large = "x";  // whatever its end begins with, it is within a character
    for (int i = 0; i < 600'000; ++i) large += "\xC3\xA4";
    const struct {
        std::string Before, Added, LineEnd, Umlaut;
    } cases[] = {
        {"old\r\n", "", "\r\n", "\xC3\xA4"},
        {"old\n", "", "\n", "\xC3\xA4"},
        {"old\r", "", "\r", "\xC3\xA4"},
        {"\r\n\n", "", "\n", "\xC3\xA4"},
        {"no line end", "\r\n", "\r\n", "\xC3\xA4"},
        {"one\ntwo", "\n", "\n", "\xC3\xA4"},
        {"\xEF\xBB\xBF\xE4\r\n", "", "\r\n", "\xC3\xA4"},
        {"\xC3\xA4\r\n", "", "\r\n", "\xC3\xA4"},
        {"\xE4\r\n", "", "\r\n", "\xE4"},
        {large + "\n", "", "\n", "\xC3\xA4"},
        {kMark + std::string(1'200'000, '\xE4') + "\n", "", "\n", "\xC3\xA4"},
    };
    for (const auto& each : cases) {
        Fake.Files.PutText(kLog, each.Before);
        Throw(std::runtime_error("\xC3\xA4"));
        std::string block = Block("std::runtime_error", each.Umlaut);
        for (std::size_t at = 0; (at = block.find("\r\n", at)) != std::string::npos;
             at += each.LineEnd.size())
            block.replace(at, 2, each.LineEnd);
        EXPECT_TRUE(Text() == each.Before + each.Added + block) << each.Before.substr(0, 20);
    }
}

TEST_F(TFaultLogTest, ALogInUtf16StaysInUtf16) {
    using namespace std::string_literals;
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"\xFF\xFEo\0"s, "\r\0\n\0\x30\0\x31\0.\0"s, "=\0\xE4\0\r\0\n\0\r\0\n\0"s},
        {"\xFE\xFF\0\n"s, "\0\x30\0\x31\0."s, "\0=\0\xE4\0\n\0\n"s},
        {"\xFE\xFF" + std::string(1'200'000, 'n') + "\0\n"s, "\0\x30\0\x31\0."s, "\0=\0\xE4\0\n\0\n"s},
    };
    for (const auto& [before, begin, end] : cases) {
        Fake.Files.PutText(kLog, before);
        Throw(std::runtime_error("\xC3\xA4"));
        EXPECT_TRUE(Text().starts_with(before + begin) && Text().ends_with(end)) << before.substr(0, 4);
    }
}

TEST_F(TFaultLogTest, ALogThatCannotBeWrittenIsGivenUp) {
    Fake.Files.PutText(kLog, "old\r\n");
    Fake.Files.FailReplace(1);
    Throw(std::runtime_error("lost"));
    Throw(std::runtime_error("kept"));
    Fake.Files.Lock(kLog);
    Throw(std::runtime_error("lost"));  // an unread log would be overwritten
    EXPECT_EQ(Text(), "old\r\n" + Block("std::runtime_error", "kept"));
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());
}

TEST_F(TFaultLogTest, AFaultInTheLogIsNoSecondFault) {
    Fake.Clock.OnDateTimeText = [] { throw std::bad_alloc(); };
    Log.Add(L"first", {});
    EXPECT_EQ(Text(), "");
    Fake.Files.PutText(kLog, "");

    Fake.Clock.OnDateTimeText = [this] { Log.Add(L"inner", {}); };
    Log.Add(L"outer", {});
    EXPECT_EQ(Text(), kMark + Block("outer", "")) << "and the log works again after a failure";
}

}  // namespace
