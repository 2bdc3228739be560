#include "platform/numeric_fields.h"

#include "base/decimal.h"
#include "platform/faults.h"
#include "platform/text.h"

namespace {

/// A field at work.
class TNumericField {
  public:
    TNumericField(TUpDown& upDown, TNotifyEvent changed)
        : FUpDown(upDown), FEdit(*upDown.Associate()), FChanged(std::move(changed)) {}

    void Change() const {
        if (!FEdit.Focused()) return;
        if (!FEdit.Text().empty()) {
            const int number = Number();
            if (number > FUpDown.Max()) return Correct(FUpDown.Max());
            if (FEdit.IsPositive && number <= 0) return Correct(1);
        }
        Tell();
    }

    void Exit() const {
        if (!FEdit.Text().empty() && Number() >= FUpDown.Min()) return;
        FEdit.SetText(DecimalText(FUpDown.Min()));
        Tell();
    }

    static bool KeyPress(wchar_t key) { return key == kBackspace || (key >= L'0' && key <= L'9'); }

  private:
    static constexpr wchar_t kBackspace = 8;

    [[nodiscard]] int Number() const {
        const auto number = ParseInteger(FEdit.Text());
        if (!number) throw EConvertError(FEdit.Text());
        return *number;
    }

    /// The edit has the focus, so that the corrected text comes back to Change.
    void Correct(int number) const { FEdit.SetText(DecimalText(number)); }

    void Tell() const {
        if (FEdit.IsSender)
            FChanged(FEdit);
        else
            FChanged(FUpDown);
    }

    TUpDown& FUpDown;
    TEdit& FEdit;
    TNotifyEvent FChanged;
};

}  // namespace

void BindNumericField(TUpDown& upDown, const TNotifyEvent& changed) {
    TEdit& edit = *upDown.Associate();
    const TNumericField field(upDown, changed);
    edit.OnChange = [field](TComponent&) { field.Change(); };
    edit.OnExit = [field](TComponent&) { field.Exit(); };
    if (edit.FiltersKeys) edit.OnKeyPress = TNumericField::KeyPress;
    edit.DigitsOnly = true;
}
