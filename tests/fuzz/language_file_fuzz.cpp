// The parser of language files: every line is kept or dropped as it should be, look-ups answer what the file says, and
// changes change what they are to change.
#include "platform/ext_ini_file.h"
#include "tests/fakes/fake_system.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/ini_model.h"

namespace {

constexpr const wchar_t* kFile = L"C:\\Language\\sample.lng";
constexpr const wchar_t* kFallback = L"<none>";

std::vector<std::wstring> LinesOf(const TNamedLines& lines) {
    std::vector<std::wstring> all;
    for (std::size_t i = 0; i < lines.Count(); ++i) all.emplace_back(lines.Line(i));
    return all;
}

void RequireSame(const TExtIniFile& file, TIniModel& model) {
    const auto names = file.ReadSections();
    Require(names.size() == model.Sections().size(), "as many sections as the file has");
    for (std::size_t i = 0; i < names.size(); ++i) {
        Require(names[i] == model.Sections()[i].Name, "sections in their order");
        const auto& lines = model.Find(names[i])->Lines;
        Require(LinesOf(file.ReadSectionValues(names[i])) == lines,
                "the lines of the last section of a name");
        std::vector<std::wstring> keys;
        for (const std::wstring& line : lines) {
            const auto key = TIniModel::KeyOf(line);
            if (!key) continue;
            keys.push_back(*key);
            Require(file.ValueExists(names[i], *key), "a value that is there is found");
            Require(file.ReadString(names[i], *key, kFallback) == model.Value(names[i], *key),
                    "the last value");
        }
        Require(file.ReadSection(names[i]) == keys, "keys in their order");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.Put(kFile, {data, data + size});
    TExtIniFile file;
    Require(file.LoadFromFile(fake.System, kFile), "a file that can be read is loaded");
    TIniModel model(DecodeText({data, size}, fake.Windows));
    RequireSame(file, model);
    Require(file.ReadString(L"\x01", L"a", kFallback) == kFallback, "nothing is found in no section");

    // A section and a key to be changed: new ones, or of those that are there the one that the size chooses.
    std::wstring section = L"New";
    std::wstring key = L"Key";
    if (!model.Sections().empty()) {
        section = model.Sections()[size % model.Sections().size()].Name;
        const auto keys = file.ReadSection(section);
        if (!keys.empty() && size % 3 != 0) key = keys[size % keys.size()];
    }
    file.WriteString(section, key, L"a=b");
    model.Write(section, key, L"a=b");
    RequireSame(file, model);
    file.DeleteKey(section, key);
    model.DeleteKey(section, key);
    RequireSame(file, model);
    file.EraseSection(section);
    model.EraseSection(section);
    RequireSame(file, model);
    return 0;
}
