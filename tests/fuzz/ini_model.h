// What a file in INI form says, worked out the long way: the yardstick for the parser.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/text.h"

class TIniModel {
  public:
    struct TSection {
        std::wstring Name;
        std::vector<std::wstring> Lines;
    };

    explicit TIniModel(const std::wstring& text) {
        std::wstring line;
        for (std::size_t i = 0; i <= text.size(); ++i) {
            const wchar_t c = i < text.size() ? text[i] : L'\n';
            if (c != L'\r' && c != L'\n')
                line += c;
            else
                Take(std::exchange(line, {}));
        }
    }

    [[nodiscard]] const std::vector<TSection>& Sections() const { return FSections; }

    /// The last section of that name, or null.
    [[nodiscard]] TSection* Find(const std::wstring& name) {
        TSection* found = nullptr;
        for (TSection& section : FSections)
            if (SameText(section.Name, name)) found = &section;
        return found;
    }
    /// The last line of that key, or null.
    [[nodiscard]] std::wstring* Find(const std::wstring& section, const std::wstring& key) {
        TSection* place = Find(section);
        std::wstring* found = nullptr;
        for (std::size_t i = 0; place != nullptr && i < place->Lines.size(); ++i) {
            const auto name = KeyOf(place->Lines[i]);
            if (name && SameText(*name, key)) found = &place->Lines[i];
        }
        return found;
    }
    [[nodiscard]] std::optional<std::wstring> Value(const std::wstring& section, const std::wstring& key) {
        const std::wstring* line = Find(section, key);
        return line == nullptr ? std::nullopt : std::optional(line->substr(line->find(L'=') + 1));
    }

    [[nodiscard]] static std::optional<std::wstring> KeyOf(const std::wstring& line) {
        const std::size_t equals = line.find(L'=');
        return equals == std::wstring::npos ? std::nullopt : std::optional(line.substr(0, equals));
    }

    void Write(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
        if (Find(section) == nullptr) FSections.push_back({section, {}});
        if (std::wstring* line = Find(section, key))
            *line = key + L'=' + value;
        else
            Find(section)->Lines.push_back(key + L'=' + value);
    }
    void DeleteKey(const std::wstring& section, const std::wstring& key) {
        if (const std::wstring* line = Find(section, key)) {
            auto& lines = Find(section)->Lines;
            lines.erase(lines.begin() + (line - lines.data()));
        }
    }
    void EraseSection(const std::wstring& name) {
        if (const TSection* section = Find(name))
            FSections.erase(FSections.begin() + (section - FSections.data()));
    }

  private:
    static std::wstring Trimmed(std::wstring text) {
        const auto isText = [](wchar_t c) { return c > L' '; };
        text.erase(text.begin(), std::find_if(text.begin(), text.end(), isText));
        text.erase(std::find_if(text.rbegin(), text.rend(), isText).base(), text.end());
        return text;
    }

    void Take(std::wstring line) {
        line = Trimmed(line);
        if (line.empty() || line[0] == L';') return;
        if (line.size() > 1 && line[0] == L'[' && line.back() == L']') {
            FSections.push_back({Trimmed(line.substr(1, line.size() - 2)), {}});
        } else if (!FSections.empty()) {
            const std::size_t equals = line.find(L'=');
            FSections.back().Lines.push_back(equals == std::wstring::npos
                                                 ? line
                                                 : Trimmed(line.substr(0, equals)) + L'=' +
                                                       Trimmed(line.substr(equals + 1)));
        }
    }

    std::vector<TSection> FSections;
};
