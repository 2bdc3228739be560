// The root of everything a form owns: a name, a kind, and for visible things a place in the form and a state.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

enum class TComponentKind {
    Form,
    Panel,
    Notebook,
    NotebookPage,
    PageControl,
    TabSheet,
    GroupBox,
    Label,
    CheckBox,
    RadioButton,
    Edit,
    UpDown,
    TrackBar,
    ComboBox,
    Button,
    ColorSwatch,
    Image,
    ListView,
    CategoryBar,
    CategoryGroup,
    CategoryItem,
    Timer,
};

class TComponent;
class TForm;

/// An event of a component; the sender is the component that fired.
using TNotifyEvent = std::function<void(TComponent& sender)>;

/// How a text stands out from the others.
enum class TTextLook { Plain, Title, Quiet, Heading };

/// A card has a pale ground and a frame; a header, which says what stands below it, has a line under it.
enum class TPanelLook { Plain, Card, Header };

/// Something a form owns. Names are unique within the form and are what the outside world (language files,
/// pending changes, automation) knows it by; they never change.
class TComponent {
  public:
    TComponent(TComponentKind kind, std::wstring name) : FKind(kind), FName(std::move(name)) {}
    virtual ~TComponent() = default;
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;

    [[nodiscard]] TComponentKind Kind() const { return FKind; }
    [[nodiscard]] const std::wstring& Name() const { return FName; }

  protected:
    /// Calls the handler when there is one.
    void Fire(const TNotifyEvent& event) {
        if (event) event(*this);
    }

  private:
    TComponentKind FKind;
    std::wstring FName;
};

/// What about a control changed, so that its peer updates no more than that.
enum class TControlAspect { Caption, Enabled, Visible, State, Items, Mark, Frame, Front, Back };

/// The native side of a component. It shows the state, and turns a user's action into a state change; it never
/// knows what the component means.
class TPeer {
  public:
    virtual ~TPeer() = default;
    virtual void Update(TControlAspect aspect) = 0;
};

/// A component with a place in the window.
class TControl : public TComponent {
  public:
    using TComponent::TComponent;

    [[nodiscard]] const std::wstring& Caption() const { return FCaption; }
    void SetCaption(const std::wstring& caption);

    [[nodiscard]] bool Enabled() const { return FEnabled; }
    void SetEnabled(bool enabled);

    /// The control's own mark; it shows when all its parents are visible too.
    [[nodiscard]] bool Visible() const { return FVisible; }
    void SetVisible(bool visible);

    /// Whether the control stands out, by a dot beside it, as one whose setting is changed but not stored yet.
    [[nodiscard]] bool Marked() const { return FMarked; }
    void SetMarked(bool marked);

    /// Whether a frame around the control catches the eye; of the controls of a form one at a time.
    [[nodiscard]] bool Framed() const { return FFramed; }
    void SetFramed(bool framed);

    void BringToFront() { UpdatePeer(TControlAspect::Front); }
    void SendToBack() { UpdatePeer(TControlAspect::Back); }

    /// The control this one lies in; null for a form.
    [[nodiscard]] TControl* Parent() const { return FParent; }
    /// The controls that lie in this one, in tab order. Owned by the form.
    [[nodiscard]] const std::vector<TControl*>& Children() const { return FChildren; }

    /// Attaches the native side, which the control then owns.
    void SetPeer(std::unique_ptr<TPeer> peer) { FPeer = std::move(peer); }
    [[nodiscard]] TPeer* Peer() const { return FPeer.get(); }

    bool IsLate = false;  ///< of what lies in the form itself: the window appears before it has a peer

  protected:
    void UpdatePeer(TControlAspect aspect) {
        if (FPeer) FPeer->Update(aspect);
    }

  private:
    friend class TForm;

    std::wstring FCaption;
    bool FEnabled = true;
    bool FVisible = true;
    bool FMarked = false;
    bool FFramed = false;
    TControl* FParent = nullptr;
    std::vector<TControl*> FChildren;
    std::unique_ptr<TPeer> FPeer;
};
