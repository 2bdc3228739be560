#include "console/outcome_words.h"

#include <exception>

#include "platform/text.h"
#include "settings/change_words.h"
#include "settings/rights.h"

namespace {

TText ReasonAt(const TTask& task, const TTarget& target) {
    if (!MayChange(task.System, target)) return TText::NoRights;
    if (const auto* service = std::get_if<TServiceTarget>(&target)) {
        const TContent content = ContentOf(task.System, *service, nullptr);
        return content == TContent(TServiceContent()) ? TText::NoService : TText::ServiceNotSwitched;
    }
    return std::holds_alternative<TPreferenceTarget>(target) ? TText::FileNotWritten : TText::Refused;
}

}  // namespace

TValue RecordOf(const TTask& task, const TChange& change, std::optional<bool> done) {
    std::wstring after = ContentWords(change.Target, change.After, task.Captions());
    if (change.IsOverwritten) after = Formatted(task.Captions()[TCaption::Overwritten], {after});
    TRecord record{{L"setting", {change.Setting}, false},
                   {L"place", {PlaceWords(change.Target, task.Captions())}},
                   {L"before", {ContentWords(change.Target, change.Before, task.Captions())}},
                   {L"after", {std::move(after)}},
                   {L"restart", {change.Restart == TRestart::Windows}, false},
                   {L"explorer", {change.Restart == TRestart::Explorer}, false}};
    if (done) record.push_back({L"done", {*done}, false});
    return {std::move(record)};
}

void FailAt(TTask& task, const TTarget& target) {
    task.Fail(task.Texts(TText::NotWritten,
                         {PlaceWords(target, task.Captions()), task.Texts[ReasonAt(task, target)]}));
}

void Try(TTask& task, const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& fault) {
        task.Fail(FromUtf8(fault.what()));
    }
}
