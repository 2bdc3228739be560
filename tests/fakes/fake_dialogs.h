// A user who has made up his mind beforehand.
#pragma once

#include <deque>
#include <vector>

#include "platform/dialogs.h"
#include "ui/form.h"

/// A message box that was shown.
struct TQuestion {
    std::wstring Title;
    std::wstring Text;
    TMessageButtons Buttons = TMessageButtons::Ok;
    TMessageIcon Icon = TMessageIcon::None;

    bool operator==(const TQuestion&) const = default;
};

/// Answers are taken in the order in which they were queued. Without one a message is answered with Ok or No and a
/// chooser is cancelled.
class TFakeDialogs : public TDialogs {
  public:
    void Answer(TMessageAnswer answer) { FAnswers.push_back(answer); }
    void AnswerFile(const std::optional<std::wstring>& path) { FFiles.push_back(path); }
    void AnswerColor(std::optional<TColor> color) { FColors.push_back(color); }

    [[nodiscard]] const std::vector<TQuestion>& Questions() const { return FQuestions; }
    /// The name of the form that asked, for every dialog of whatever kind.
    [[nodiscard]] const std::vector<std::wstring>& Askers() const { return FAskers; }
    [[nodiscard]] const std::vector<std::wstring>& Filters() const { return FFilters; }
    [[nodiscard]] const std::vector<std::wstring>& SuggestedNames() const { return FSuggestedNames; }
    [[nodiscard]] const std::vector<TColor>& InitialColors() const { return FInitialColors; }

    TMessageAnswer Message(const TForm& asker, const std::wstring& text, TMessageButtons buttons,
                           TMessageIcon icon) override {
        FQuestions.push_back({asker.Caption(), text, buttons, icon});
        FAskers.push_back(asker.Name());
        return Take(FAnswers, buttons == TMessageButtons::Ok ? TMessageAnswer::Ok : TMessageAnswer::No);
    }
    [[nodiscard]] std::optional<std::wstring> OpenFile(const TForm& asker,
                                                       const std::wstring& filter) override {
        FAskers.push_back(asker.Name());
        FFilters.push_back(filter);
        return Take(FFiles, {});
    }
    [[nodiscard]] std::optional<std::wstring> SaveFile(const TForm& asker, const std::wstring& filter,
                                                       const std::wstring& suggestedName) override {
        FSuggestedNames.push_back(suggestedName);
        return OpenFile(asker, filter);
    }
    [[nodiscard]] std::optional<TColor> PickColor(const TForm& asker, TColor initial) override {
        FAskers.push_back(asker.Name());
        FInitialColors.push_back(initial);
        return Take(FColors, {});
    }

  private:
    template <typename T>
    static T Take(std::deque<T>& queue, T otherwise) {
        if (queue.empty()) return otherwise;
        T front = std::move(queue.front());
        queue.pop_front();
        return front;
    }

    std::deque<TMessageAnswer> FAnswers;
    std::deque<std::optional<std::wstring>> FFiles;
    std::deque<std::optional<TColor>> FColors;
    std::vector<TQuestion> FQuestions;
    std::vector<std::wstring> FAskers;
    std::vector<std::wstring> FFilters;
    std::vector<std::wstring> FSuggestedNames;
    std::vector<TColor> FInitialColors;
};
