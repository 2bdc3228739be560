#include "platform/ext_ini_file.h"

namespace {

/// The text of a file, whose bytes are let go before anyone works on it.
std::optional<std::wstring> ReadText(const TSystem& system, const std::wstring& fileName) {
    const auto bytes = system.Files.Read(fileName);
    if (!bytes || bytes->size() > TExtIniFile::kMaxFileSize) return std::nullopt;
    return DecodeText(*bytes, system.Windows);
}

std::wstring Joined(std::wstring_view key, std::wstring_view value) {
    std::wstring line(key);
    line += L'=';
    line += value;
    return line;
}

}  // namespace

bool TExtIniFile::LoadFromFile(const TSystem& system, const std::wstring& fileName) {
    const auto text = ReadText(system, fileName);
    if (!text) return false;
    SetStrings(TLineReader(*text));
    return true;
}

void TExtIniFile::SetStrings(TLineReader lines) {
    Clear();
    TNamedLines* section = nullptr;
    std::wstring_view line;
    while (lines.Next(line)) {
        line = Trim(line);
        if (line.empty() || line.starts_with(L';')) continue;
        if (line.starts_with(L'[') && line.ends_with(L']')) {
            section = &AddSection(Trim(line.substr(1, line.size() - 2)));
        } else if (section != nullptr) {
            const std::size_t equals = line.find(L'=');
            if (equals == std::wstring_view::npos)
                section->Append(line);
            else
                section->Append(Joined(Trim(line.substr(0, equals)), Trim(line.substr(equals + 1))));
        }
    }
}

void TExtIniFile::Clear() {
    FSections.clear();
    FPlaces.clear();
}

TNamedLines& TExtIniFile::AddSection(std::wstring_view section) {
    FPlaces.insert_or_assign(std::wstring(section), FSections.size());
    return FSections.emplace_back(TSection{std::wstring(section), {}}).Lines;
}

const TNamedLines* TExtIniFile::Find(std::wstring_view section) const {
    const auto place = FPlaces.find(section);
    return place == FPlaces.end() ? nullptr : &FSections[place->second].Lines;
}

TNamedLines* TExtIniFile::Find(std::wstring_view section) {
    const auto place = FPlaces.find(section);
    return place == FPlaces.end() ? nullptr : &FSections[place->second].Lines;
}

std::wstring TExtIniFile::ReadString(std::wstring_view section, std::wstring_view key,
                                     std::wstring_view fallback) const {
    const TNamedLines* lines = Find(section);
    const auto found = lines != nullptr ? lines->Find(key) : std::nullopt;
    // A name and the key that found it have the same length.
    return std::wstring(found ? lines->Line(*found).substr(key.size() + 1) : fallback);
}

bool TExtIniFile::ValueExists(std::wstring_view section, std::wstring_view key) const {
    const TNamedLines* lines = Find(section);
    return lines != nullptr && lines->Find(key);
}

void TExtIniFile::WriteString(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    TNamedLines* lines = Find(section);
    if (lines == nullptr) lines = &AddSection(section);
    if (const auto found = lines->Find(key))
        lines->Replace(*found, Joined(key, value));
    else
        lines->Append(Joined(key, value));
}

std::vector<std::wstring> TExtIniFile::ReadSection(std::wstring_view section) const {
    std::vector<std::wstring> names;
    if (const TNamedLines* lines = Find(section)) {
        for (std::size_t i = 0; i < lines->Count(); ++i) {
            if (const auto name = lines->Name(i)) names.emplace_back(*name);
        }
    }
    return names;
}

std::vector<std::wstring> TExtIniFile::ReadSections() const {
    std::vector<std::wstring> names;
    for (const TSection& section : FSections) names.push_back(section.Name);
    return names;
}

TNamedLines TExtIniFile::ReadSectionValues(std::wstring_view section) const {
    const TNamedLines* lines = Find(section);
    return lines != nullptr ? *lines : TNamedLines();
}

void TExtIniFile::EraseSection(std::wstring_view section) {
    const auto place = FPlaces.find(section);
    if (place == FPlaces.end()) return;
    FSections.erase(FSections.begin() + static_cast<std::ptrdiff_t>(place->second));
    FPlaces.clear();
    for (std::size_t i = 0; i < FSections.size(); ++i) FPlaces.insert_or_assign(FSections[i].Name, i);
}

void TExtIniFile::DeleteKey(std::wstring_view section, std::wstring_view key) {
    TNamedLines* lines = Find(section);
    if (lines == nullptr) return;
    if (const auto found = lines->Find(key)) lines->Erase(*found);
}
