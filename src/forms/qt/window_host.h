#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>
#include <memory>
#include <set>
#include <unordered_map>

#include "forms/qt/announcer.h"
#include "forms/qt/operator_input.h"
#include "toolkit/controls.h"

namespace tallyhut {

class FormWindow;
class QtPump;
struct Form;

/// The forms of a desk as windows. Whenever the pump lets events in, it first brings to the screen what has changed;
/// what the operator does goes to the desk.
///
/// Fills the desk's outlets and the pump's onShow, and empties them when it ends. A form's window is made when the form
/// is first shown and kept until the host ends, which must be before the forms do.
class WindowHost : public QObject {
public:
    WindowHost(Desk& desk, QtPump& pump);
    ~WindowHost() override;
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;
    WindowHost(WindowHost&&) = delete;
    WindowHost& operator=(WindowHost&&) = delete;

    /// Null before the form was first shown.
    QWidget* WindowOf(const Form& form) const;

protected:
    /// Keys go to the desk before any widget sees them.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct FormView;

    void Flush();
    void SyncControls();
    void SyncForm(Form& form);
    static void SyncFocus(const FormView& view);
    void SyncActive();
    void WatchAlt(const QObject& watched, const QEvent& event);
    std::string PngOf(const Raster& picture) const;
    void FocusNext(bool backwards);
    void MarkFocus();
    FormView& ViewOf(Form& form);
    void AddWidget(FormView& view, Control& control);
    void RemoveWidget(Control& control);
    void PutInPlace(FormView& view);
    /// Gives the window, with what the desktop puts around it, this place, as far as the work area lets it.
    void SetOuterPlace(FormView& view, const QRect& outer);
    void LearnMargins(FormView& view);
    void TellPlace(FormView& view);
    void OnActivated(Form& form);
    void MarkAll(const Form& form);

    Desk& desk_;
    QtPump& pump_;
    OperatorInput input_;
    Announcer announcer_;
    std::unordered_map<const Form*, std::unique_ptr<FormView>> views_;
    std::set<Control*> dirtyControls_;
    std::set<Form*> dirtyForms_;
    Form* shownActive_ = nullptr;  ///< the form whose window was last made the active one
    Form* awaited_ = nullptr;      ///< asked of the desktop to become active, and not yet reported so
    bool dialogOpen_ = false;
    bool altAlone_ = false;  ///< Alt is down, and nothing else was pressed since
    QMargins margins_;       ///< what the desktop puts around a window, as last seen
};

}  // namespace tallyhut
