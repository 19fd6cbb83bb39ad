#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/platform_error.h"
#include "toolkit/alarm.h"
#include "toolkit/controls.h"
#include "toolkit/form.h"
#include "toolkit/io_source.h"

namespace tallyhut {

/// What a host wants to know to show the forms. Does nothing by default.
struct DeskOutlets {
    std::function<void(Control&)> controlChanged;
    std::function<void(Control&)> controlAdded;
    std::function<void(Control&)> controlRemoved;
    enum class FormEvent { Shown, ShownModal, Hidden, Minimised, Restored, Refused, Activated, Changed };
    std::function<void(Form&, FormEvent)> formChanged;
    /// A menu is to be opened by its access key; null closes it.
    std::function<void(MenuEntry*)> menuOpened;
    std::function<void(std::string_view)> announced;
    /// The picture as PNG, with all that lies on it, as the host draws it.
    std::function<std::string(const Raster&)> png;
};

/// Where the forms lie: which of them is active, where the focus goes, in which order keys, clicks, timers and devices
/// reach their handlers. All that an operator can observe apart from pixels is decided here, the same for every host.
///
/// Handlers run on the caller's stack, from RunPending and its kin only. Whoever calls those reads back afterwards what
/// it needs: any handler may have run. What a handler throws goes no further: a failure of the machine is told by
/// `onFailure`, all else is fatal and goes to `onFatal`.
struct Desk {
    Desk(Clock& machineClock, EventPump& machinePump, Dialogs& machineDialogs, Clipboard& machineClipboard);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    Desk(Desk&&) = delete;
    Desk& operator=(Desk&&) = delete;

    Clock& clock;
    EventPump& pump;
    Dialogs& dialogs;
    Clipboard& clipboard;
    DeskOutlets outlets;
    /// Tells the operator of a failure that nothing handled; must not return. No timer, key or device runs meanwhile.
    std::function<void(const std::exception&)> onFatal;
    /// Tells the operator of what the machine refused; the program goes on as it was.
    std::function<void(const PlatformError&)> onFailure;
    /// Whether the key is delivered at once, also where a key before it is held back.
    std::function<bool(const Key&)> isUrgent;

    const std::vector<Form*>& Forms() const { return forms_; }
    Form* FindForm(std::string_view name) const;
    /// Puts the forms of these names in this order, before all others.
    void ArrangeForms(std::span<const std::string_view> names);
    /// The form that keys go to; null while none can take them.
    Form* Active() const;
    /// Brings a shown form to the front, unless a modal form stands over it.
    void Activate(Form& form);
    bool IsBlockedByModal(const Form& form) const;

    /// What the operator does, in order. Delivered when events run.
    void PostKey(const Key& key);
    void PostClick(Control& control, MouseButton button, bool twice = false);
    void PostRowClick(Control& listControl, int row, MouseButton button, bool twice = false);
    void PostAction(std::function<void()> action);
    /// A key from the program to the active form; goes before what the operator has typed ahead.
    void SendKeys(const Key& key);
    /// The operator's click on a menu entry.
    void PostMenu(MenuEntry& entry);
    void CloseMenu();
    /// Opens the first menu of the active form, as Alt alone does, and F10 where no handler has used it up.
    void OpenMenuBar();
    MenuEntry* OpenMenu() const { return openMenu_; }

    /// Words for an operator who does not see the screen: spoken once by a screen reader, when the running handler is
    /// over. Nothing for anybody else.
    void Announce(std::string_view words) const;

    /// The picture as the bytes of a PNG file: as the host draws it, or its pixels where the host draws none.
    std::string PngOf(const Raster& picture) const;

    /// Lets waiting focus events, keys, clicks, timers and devices reach their handlers, in rounds: focus events first,
    /// then each source that is signalled, once, then what is due, then one of the operator's events. When nothing else
    /// waits, what has signalled again has one more round; after that it waits for the next call.
    void RunPending();
    /// The focus events that wait, and nothing else.
    void RunFocusEvents();
    /// One round without focus events and without what the operator does.
    void RunTimersAndIo();
    /// The same between two steps of a handler that takes not long: what has changed is shown with the last of them.
    void RunBetweenSteps();
    /// Runs events until the claim holds: the loop of the program, of a modal form.
    void RunUntil(const std::function<bool()>& done);
    /// The loop of a dialog of the machine: the operator's keys belong to the dialog, timers and devices go on.
    void RunDialog(const std::function<bool()>& done);
    /// While that loop runs, for a timer that must wait for the operator's answer.
    bool DialogIsOpen() const { return openDialogs_ > 0; }

    /// When something is due by itself: a timer, an alarm, or a key that is held back.
    std::optional<Tick> NextDue() const;
    /// Some source has signalled again and has its turn when events run next.
    bool SourceWaits() const;
    /// Until when the next key is held back by its control's gate.
    std::optional<Tick> HeldUntil() const;

    /// While one of these lives, keys, clicks and sent keys wait. Modal forms and dialogs opened meanwhile work all the
    /// same.
    class InputHold {
    public:
        explicit InputHold(Desk& owner) : desk_{owner} { ++desk_.inputHolds_; }
        ~InputHold() { --desk_.inputHolds_; }
        InputHold(const InputHold&) = delete;
        InputHold& operator=(const InputHold&) = delete;
        InputHold(InputHold&&) = delete;
        InputHold& operator=(InputHold&&) = delete;

    private:
        Desk& desk_;
    };

    /// Runs a handler; nothing for an empty one. A PlatformError that it throws is told, all else is fatal.
    template <typename Handler, typename... Arguments>
    void Call(const Handler& handler, Arguments&&... arguments) {
        if (!handler) {
            return;
        }
        try {
            const Handler running = handler;  // its control may be removed, or get another handler, while it runs
            running(std::forward<Arguments>(arguments)...);
        } catch (const PlatformError& failure) {
            Tell(failure);
        } catch (const std::exception& failure) {
            Fatal(failure);
        }
    }

private:
    friend struct Alarm;
    friend struct Control;
    friend struct Form;
    friend struct IoSource;

    enum class FocusStep { Lost, Got, Activated };
    struct FocusEvent {
        FocusStep step;
        Control* control;
        Form* form;
    };
    struct OperatorEvent {
        std::optional<Key> key;  ///< else an action
        std::function<void()> action;
        const Control* target = nullptr;  ///< of an action that is lost with its control
    };

    /// Notices that a control, a source or an alarm is removed by a handler. Sources and alarms are watched while their
    /// own handler runs, and only then.
    class Watch {
    public:
        Watch(Desk& owner, const void* watched) : desk_{owner} { desk_.watched_.push_back(watched); }
        ~Watch() { desk_.watched_.pop_back(); }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;
        Watch(Watch&&) = delete;
        Watch& operator=(Watch&&) = delete;

        bool IsGone() const { return desk_.watched_.at(place_) == nullptr; }

    private:
        Desk& desk_;
        std::size_t place_ = desk_.watched_.size();  ///< before the constructor adds it
    };

    void Tell(const PlatformError& failure);
    void Fatal(const std::exception& failure);

    /// With the form brought to the front, and without.
    void MoveFocus(Control& to);
    void ShiftFocus(Control& to);
    void ReturnFocus(Control& to);
    void ForgetFocusEvents(const Form& form);
    void Forget(const Control& control);
    void ForgetWatched(const void* watched);
    bool IsWatched(const void* watched) const;
    void BringToFront(Form& form);
    void NoteActive();
    Form* ForemostModal() const;

    /// Like RunPending, but ends with the handler that made the claim hold.
    void RunPendingUntil(const std::function<bool()>& done);
    bool RunFocusEvent();
    void RunRoundOfTimersAndIo();
    bool RunSource(std::uint64_t round);
    bool RunDueAlarm(Tick now);
    bool RunOperatorEvent();
    Alarm* EarliestAlarm() const;
    std::optional<Tick> NextAlarmDue() const;
    void Wait(std::optional<Tick> due);
    /// Until when the control with the focus holds the key back.
    std::optional<Tick> GateOf(const Key& key) const;

    void DeliverKey(Key key);
    bool AccessKeyTaken(Form& form, char letter);
    bool MenuKeyTaken(const Key& key);
    bool ToolkitKeyTaken(Form& form, Control* control, int keyCode, int shift);
    static bool TabTaken(Form& form, Control* control, bool backwards);
    bool PressTaken(Control& control, int keyCode);
    static bool RowKeyTaken(Control& control, int keyCode);
    /// On a list; where a row is selected, it is clicked.
    bool RightClickTaken(Control& control);
    static bool OptionKeyTaken(Option& option, int keyCode);
    bool TextKeyTaken(TextBox& box, int keyCode, int shift);
    void CopySelection(const TextBox& box);
    void TypeInto(Control* control, int character);
    void DialogKey(Form& form, int character);
    void ChooseByOperator(Control& control);
    void ClickRow(Control& listControl, int row, MouseButton button);
    /// Gives the control the focus as a mouse press does; false if that showed a box or moved the focus on.
    bool TakeFocusByMouse(Control& control);
    bool CanBeClicked(const Control& control) const;
    void DeliverClick(Control& control, MouseButton button, bool twice);
    /// The same by a key: no mouse handler runs.
    void PressByKey(Control& control);
    void DeliverRowClick(Control& listControl, int row, MouseButton button, bool twice);
    void ClickEntry(MenuEntry& entry);
    void SetOpenMenu(MenuEntry* entry);

    std::vector<Form*> forms_;
    std::vector<Form*> front_;   ///< shown forms, the foremost last
    std::vector<Form*> modals_;  ///< modal forms, the innermost last
    Form* lastActive_ = nullptr;
    MenuEntry* openMenu_ = nullptr;
    int highlighted_ = -1;  ///< entry of the open menu that arrows have reached

    std::deque<FocusEvent> focusEvents_;
    std::deque<OperatorEvent> operatorEvents_;
    std::deque<Key> sentKeys_;
    std::vector<Alarm*> alarms_;  ///< in order of creation; those of timers too
    std::vector<IoSource*> sources_;
    std::uint64_t rounds_ = 0;          ///< begun so far
    std::vector<const void*> watched_;  ///< null for one that is gone
    int inputHolds_ = 0;
    int openDialogs_ = 0;
    int focusMoves_ = 0;
    bool frozen_ = false;
};

}  // namespace tallyhut
