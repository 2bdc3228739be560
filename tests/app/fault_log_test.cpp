#include "app/fault_log.h"

#include <functional>
#include <new>

#include <gmock/gmock.h>

#include "platform/faults.h"
#include "tests/fakes/fake_system.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const wchar_t* kProgram = L"C:\\Tools\\Quilltune.exe";
constexpr const wchar_t* kLog = L"C:\\Tools\\Error_Log.txt";

/// A fault of the program's own, without a namespace to be seen by.
struct TOwnFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A Windows that may be one of 64 bits.
class TWindows : public TFakeWindowsInfo {
  public:
    bool Wow64 = false;
    [[nodiscard]] bool IsWow64() const override { return Wow64; }
};

/// A clock whose date may be a fault.
class TWatch : public TFakeClock {
  public:
    std::function<void()> OnDate = [] {};
    [[nodiscard]] std::wstring DateTimeText() const override {
        OnDate();
        return TFakeClock::DateTimeText();
    }
};

class TFaultLogTest : public testing::Test {
  protected:
    TFaultLogTest() {
        Windows.SetProgramFile(kProgram);
        TFakeVersionResource resource;
        resource.Texts[L"\\StringFileInfo\\040904B0\\FileVersion"] = L"1.2.3.4";
        resource.Blocks[L"\\VarFileInfo\\Translation"] = {0x09, 0x04, 0xB0, 0x04};
        Windows.PutVersionResource(kProgram, resource);
        Fake.Files.PutFolder(L"C:\\Tools");
    }

    template <typename T>
    void Throw(const T& fault) {
        Log.Add(std::make_exception_ptr(fault));
    }
    std::string Text() const { return Fake.Files.Text(kLog); }
    static std::string Block(const std::string& type, const std::string& message) {
        return "01.02.2010 03:04:05\r\n"
               "Application=C:\\Tools\\Quilltune.exe\r\n"
               "Version=1.2.3.4\r\n"
               "OS Info=Windows 7\r\n"
               "64bit=No\r\n"
               "Exception Type=" +
               type +
               "\r\n"
               "Error Message=" +
               message +
               "\r\n"
               "\r\n";
    }

    TFakeSystem Fake;
    TWindows Windows;
    TWatch Clock;
    TSystem System{Fake.Registry, Fake.Parameters, Fake.Services, Fake.Shell,
                   Fake.Files,    Windows,         Fake.Dialogs,  Clock};
    TFaultLog Log{System};
};

TEST_F(TFaultLogTest, EveryFaultAppendsItsBlock) {
    Throw(EConvertError(L"12a"));
    EXPECT_EQ(Text(), Block("EConvertError", "'12a' is not a valid integer value"));
    Throw(std::bad_alloc());
    Log.Add(L"EAccessViolation", L"at 1234");
    EXPECT_EQ(Text(), Block("EConvertError", "'12a' is not a valid integer value") +
                          Block("std::bad_alloc", "std::bad_alloc") + Block("EAccessViolation", "at 1234"));
    EXPECT_EQ(Fake.Files.Replaced(), std::vector<std::wstring>(3, kLog));
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());
}

TEST_F(TFaultLogTest, NamesAreReadable) {
    const std::pair<std::exception_ptr, const char*> faults[] = {
        {std::make_exception_ptr(std::out_of_range("x")), "Exception Type=std::out_of_range\r\n"},
        {std::make_exception_ptr(TOwnFault("x")), "::TOwnFault\r\n"},
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
    Windows.SetVersion({.PlatformId = 2, .Major = 5, .Minor = 0});
    Windows.Wow64 = true;
    Windows.SetProgramFile(L"C:\\Tools\\B\u00E4r.exe");  // has no version resource
    Throw(std::runtime_error("x"));
    EXPECT_THAT(Text(), HasSubstr("Application=C:\\Tools\\B\xC3\xA4r.exe\r\nVersion=Unknown\r\n"
                                  "OS Info=Windows 2000\r\n64bit=Yes\r\n"));
}

TEST_F(TFaultLogTest, AMessageStaysOneLineInUtf8) {
    Throw(std::runtime_error("one\r\ntwo\nthree \xF0\x9F\x98\x80 \xE4"));
    EXPECT_EQ(Text(), Block("std::runtime_error", "one  two three \xF0\x9F\x98\x80 \xEF\xBF\xBD"));
}

TEST_F(TFaultLogTest, WhatTheLogHoldsIsKeptToTheByte) {
    const std::string block = Block("std::runtime_error", "x");
    for (const std::string before :
         {"", "old\r\n", "old\n", "\r\n\r\n", "\xEF\xBB\xBFold\r\n", "\xE4\xF6\r\n"}) {
        Fake.Files.PutText(kLog, before);
        Throw(std::runtime_error("x"));
        EXPECT_EQ(Text(), before + block);
    }
    Fake.Files.PutText(kLog, "no line end");
    Throw(std::runtime_error("x"));
    EXPECT_EQ(Text(), "no line end\r\n" + block);
}

TEST_F(TFaultLogTest, ALogInUtf16StaysInUtf16) {
    using namespace std::string_literals;
    Fake.Files.PutText(kLog, "\xFF\xFEo\0"s);
    Throw(std::runtime_error("\xC3\xA4"));
    EXPECT_THAT(Text(), StartsWith("\xFF\xFEo\0\r\0\n\0"s
                                   "0\0"s
                                   "1\0.\0"s));
    EXPECT_THAT(Text(), EndsWith("=\0\xE4\0\r\0\n\0\r\0\n\0"s));

    Fake.Files.PutText(kLog, "\xFE\xFF\0\n"s);
    Throw(std::runtime_error("\xC3\xA4"));
    EXPECT_THAT(Text(), StartsWith("\xFE\xFF\0\n\0"s
                                   "0\0"s
                                   "1\0."s));
    EXPECT_THAT(Text(), EndsWith("\0=\0\xE4\0\r\0\n\0\r\0\n"s));
}

TEST_F(TFaultLogTest, ALogThatCannotBeWrittenIsGivenUp) {
    Fake.Files.PutText(kLog, "old\r\n");
    Fake.Files.FailReplace(1);
    Throw(std::runtime_error("lost"));
    EXPECT_EQ(Text(), "old\r\n");
    Throw(std::runtime_error("kept"));
    EXPECT_EQ(Text(), "old\r\n" + Block("std::runtime_error", "kept"));

    Fake.Files.Lock(kLog);
    const std::size_t attempts = Fake.Files.Replaced().size();
    Throw(std::runtime_error("lost"));
    EXPECT_EQ(Fake.Files.Replaced().size(), attempts) << "an unread log would be overwritten";
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());
}

TEST_F(TFaultLogTest, AFaultInTheLogIsNoSecondFault) {
    Clock.OnDate = [] { throw std::bad_alloc(); };
    Log.Add(L"first", {});
    EXPECT_EQ(Text(), "");

    Clock.OnDate = [this] { Log.Add(L"inner", {}); };
    Log.Add(L"outer", {});
    EXPECT_EQ(Text(), Block("outer", "")) << "and the log works again after a failure";
}

}  // namespace
