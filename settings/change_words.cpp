#include "settings/change_words.h"

#include "base/decimal.h"
#include "engine/reg_value.h"

namespace {

/// Characters of data that are shown, as many as a column may hold.
constexpr std::size_t kMostCharacters = 200;

// The REG_… types, as documented.
constexpr std::uint32_t kOneString = 1;
constexpr std::uint32_t kExpandText = 2;
constexpr std::uint32_t kDword = 4;
constexpr std::uint32_t kTexts = 7;
constexpr std::uint32_t kQword = 11;

const wchar_t* NameOf(TRootKey root) {
    switch (root) {
        case TRootKey::ClassesRoot:
            return L"HKEY_CLASSES_ROOT";
        case TRootKey::CurrentUser:
            return L"HKEY_CURRENT_USER";
        case TRootKey::LocalMachine:
            return L"HKEY_LOCAL_MACHINE";
        case TRootKey::Users:
            return L"HKEY_USERS";
        case TRootKey::CurrentConfig:
            return L"HKEY_CURRENT_CONFIG";
        case TRootKey::DynData:
            break;
    }
    return L"HKEY_DYN_DATA";
}

std::wstring Hex(std::uint64_t number, std::size_t digits) {
    return HexText(number, digits, kSmallHexDigits);
}

std::uint64_t NumberOf(const TBytes& bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) number = number << 8 | bytes[i];
    return number;
}

std::wstring HexBytes(const TBytes& bytes) {
    std::wstring text;
    for (const std::uint8_t byte : bytes) {
        if (text.size() > kMostCharacters) break;
        text += (text.empty() ? L"" : L" ") + Hex(byte, 2);
    }
    return text;
}

/// What is UTF-16, a line break for each NUL inside.
std::wstring TextIn(const TBytes& bytes) {
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size() && text.size() <= kMostCharacters; i += 2)
        text += static_cast<wchar_t>(bytes[i] | bytes[i + 1] << 8);
    while (!text.empty() && text.back() == L'\0') text.pop_back();
    for (wchar_t& c : text)
        if (c < L' ') c = c == L'\0' ? L'|' : L' ';
    return text;
}

/// What tells apart values that would read alike; nothing for the types that nearly all values have.
std::wstring TypeMark(std::uint32_t type) {
    constexpr std::uint32_t kBinary = 3;
    if (type == kOneString || type == kDword || type == kBinary) return {};
    if (type == kExpandText) return L" [REG_EXPAND_SZ]";
    if (type == kTexts) return L" [REG_MULTI_SZ]";
    if (type == kQword) return L" [REG_QWORD]";
    return L" [REG " + DecimalText(static_cast<std::int64_t>(type)) + L']';
}

std::wstring Words(const TRawValue& value) {
    const bool isNumber = (value.Type == kDword && value.Bytes.size() == 4) ||
                          (value.Type == kQword && value.Bytes.size() == 8);
    if (isNumber) {
        const std::uint64_t number = NumberOf(value.Bytes);
        return L"0x" + Hex(number, 2 * value.Bytes.size()) + L" (" +
               DecimalText(static_cast<std::int64_t>(number)) + L")";
    }
    if (value.Type == kOneString || value.Type == kExpandText || value.Type == kTexts)
        return TextIn(value.Bytes);
    return HexBytes(value.Bytes);
}

std::wstring Cut(std::wstring text) {
    if (text.size() <= kMostCharacters) return text;
    text.resize(kMostCharacters);
    return text + L'\u2026';
}

std::wstring Words(const TRegistryTarget& target, const TRegistryContent& content,
                   const TCaptions& captions) {
    if (content.Value) return Cut(Words(*content.Value)) + TypeMark(content.Value->Type);
    if (!target.IsKey) return captions[TCaption::ValueMissing];
    return captions[content.HasKey ? TCaption::KeyThere : TCaption::KeyMissing];
}

std::wstring Words(const TParameterContent& content, const TCaptions& captions) {
    if (!content) return captions[TCaption::Unknown];
    if (const auto* number = std::get_if<std::uint32_t>(&*content)) return DecimalText(*number);
    return HexBytes(std::get<TBytes>(*content));
}

std::wstring Words(TServiceStartType type, const TCaptions& captions) {
    switch (type) {
        case TServiceStartType::Automatic:
            return captions[TCaption::ServiceAutomatic];
        case TServiceStartType::Manual:
            return captions[TCaption::ServiceManual];
        case TServiceStartType::Disabled:
            return captions[TCaption::ServiceDisabled];
    }
    return Formatted(captions[TCaption::ServiceOther], {DecimalText(static_cast<std::int64_t>(type))});
}

std::wstring Words(const TServiceContent& content, const TCaptions& captions) {
    if (!content) return captions[TCaption::ServiceMissing];
    return Formatted(captions[content->Runs ? TCaption::ServiceRuns : TCaption::ServiceStopped],
                     {Words(content->StartType, captions)});
}

}  // namespace

std::wstring Formatted(std::wstring text, std::initializer_list<std::wstring> values) {
    std::wstring formatted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t index = text[i] == L'%' && i + 1 < text.size()
                                      ? static_cast<std::size_t>(text[i + 1] - L'1')
                                      : values.size();
        if (index < values.size()) {
            formatted += values.begin()[index];
            ++i;
        } else {
            formatted += text[i];
        }
    }
    return formatted;
}

std::wstring PlaceWords(const TTarget& target, const TCaptions& captions) {
    if (const auto* registry = std::get_if<TRegistryTarget>(&target)) {
        std::wstring key = NameOf(registry->Root) + (L'\\' + registry->Key);
        if (registry->IsKey) return key;
        return key + L'\\' +
               (registry->ValueName.empty() ? captions[TCaption::DefaultValue] : registry->ValueName);
    }
    if (const auto* parameter = std::get_if<TParameterTarget>(&target))
        return Formatted(captions[TCaption::SystemParameter], {L"0x" + Hex(parameter->Set, 4)});
    if (const auto* service = std::get_if<TServiceTarget>(&target))
        return Formatted(captions[TCaption::Service], {service->Service});
    return L"Firefox: " + std::get<TPreferenceTarget>(target).QuotedName;
}

std::wstring ContentWords(const TTarget& target, const TContent& content, const TCaptions& captions) {
    if (const auto* registry = std::get_if<TRegistryContent>(&content))
        return Words(std::get<TRegistryTarget>(target), *registry, captions);
    if (const auto* parameter = std::get_if<TParameterContent>(&content))
        return Cut(Words(*parameter, captions));
    if (const auto* service = std::get_if<TServiceContent>(&content)) return Words(*service, captions);
    return Cut(std::get<TPreferenceContent>(content).value_or(captions[TCaption::ValueMissing]));
}
