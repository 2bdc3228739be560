// The parser of language files: every line is kept or dropped as it should be, look-ups answer what the file says, and
// changes change what they are to change.
#include "platform/ext_ini_file.h"
#include "tests/fakes/fake_system.h"
#include "tests/fuzz/fuzz.h"

namespace {

constexpr const wchar_t* kFile = L"C:\\Language\\sample.lng";
constexpr const wchar_t* kFallback = L"<none>";

using TLines = std::vector<std::wstring>;
using TSections = std::vector<std::pair<std::wstring, TLines>>;

/// What the file says, worked out line by line.
TSections SectionsOf(const std::wstring& text) {
    TSections sections;
    TLineReader reader(text);
    for (std::wstring_view view; reader.Next(view);) {
        const std::wstring line(Trim(view));
        const std::size_t equals = line.find(L'=');
        const auto part = [&](std::size_t begin, std::size_t length) {
            return std::wstring(Trim(std::wstring_view(line).substr(begin, length)));
        };
        if (line.size() > 1 && line[0] == L'[' && line.back() == L']')
            sections.emplace_back(part(1, line.size() - 2), TLines());
        else if (!line.empty() && line[0] != L';' && !sections.empty())
            sections.back().second.push_back(
                equals == std::wstring::npos ? line : part(0, equals) + L'=' + part(equals + 1, line.size()));
    }
    return sections;
}

/// The last of the elements whose name, as `nameOf` finds it, is that one.
auto LastOf(auto& all, const std::wstring& name, auto nameOf) {
    return std::find_if(all.rbegin(), all.rend(),
                        [&](const auto& each) { return SameText(nameOf(each), name); });
}
auto LastOf(TSections& sections, const std::wstring& name) {
    return LastOf(sections, name, [](const auto& section) { return section.first; });
}
auto LastOf(TLines& lines, const std::wstring& key) {
    return LastOf(lines, key + L'=', [](const auto& line) { return line.substr(0, line.find(L'=') + 1); });
}

void RequireSame(const TExtIniFile& file, TSections sections) {
    const TLines names = file.ReadSections();
    Require(names.size() == sections.size(), "as many sections as the file has");
    for (std::size_t i = 0; i < names.size(); ++i) {
        Require(names[i] == sections[i].first, "sections in their order");
        TLines lines = LastOf(sections, names[i])->second;
        const TNamedLines read = file.ReadSectionValues(names[i]);
        Require(read.Count() == lines.size(), "the lines of the last section of a name");
        TLines keys;
        for (std::size_t j = 0; j < lines.size(); ++j) {
            Require(read.Line(j) == lines[j], "lines in their order");
            const std::size_t equals = lines[j].find(L'=');
            if (equals == std::wstring::npos) continue;
            keys.push_back(lines[j].substr(0, equals));
            Require(file.ValueExists(names[i], keys.back()), "a value that is there is found");
            Require(file.ReadString(names[i], keys.back(), kFallback) ==
                        LastOf(lines, keys.back())->substr(equals + 1),
                    "the last value");
        }
        Require(file.ReadSection(names[i]) == keys, "keys in their order");
    }
}

}  // namespace

void FuzzLanguageFile(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.Put(kFile, {data, data + size});
    TExtIniFile file;
    Require(file.LoadFromFile(fake.System, kFile), "a file that can be read is loaded");
    TSections sections = SectionsOf(DecodeText({data, size}, fake.Windows));
    RequireSame(file, sections);
    Require(file.ReadString(L"\x01", L"a", kFallback) == kFallback, "nothing is found in no section");

    // A section and a key to be changed: new ones, or of those that are there the one that the size chooses.
    const std::wstring name = sections.empty() ? L"New" : sections[size % sections.size()].first;
    const TLines keys = file.ReadSection(name);
    const std::wstring key = keys.empty() || size % 3 == 0 ? L"Key" : keys[size % keys.size()];
    file.WriteString(name, key, L"a=b");
    if (sections.empty()) sections.emplace_back(name, TLines());
    TLines& lines = LastOf(sections, name)->second;
    if (const auto line = LastOf(lines, key); line != lines.rend())
        *line = key + L"=a=b";
    else
        lines.push_back(key + L"=a=b");
    RequireSame(file, sections);
    file.DeleteKey(name, key);
    lines.erase(LastOf(lines, key).base() - 1);
    RequireSame(file, sections);
    file.EraseSection(name);
    sections.erase(LastOf(sections, name).base() - 1);
    RequireSame(file, sections);
}
