#include "forms/qt/window_host.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"
#include "forms/qt/form_window.h"
#include "forms/qt/key_codec.h"
#include "forms/qt/qt_pump.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/spoken_field.h"
#include "forms/qt/text_codec.h"
#include "toolkit/desk.h"
#include "toolkit/png.h"

namespace tallyhut {

/// What stands for one form on the screen.
struct WindowHost::FormView {
    std::unique_ptr<FormWindow> window;
    std::unique_ptr<FormMenus> menus;
    std::unique_ptr<FormLayout> layout;
    std::unordered_map<const Control*, ControlWidget*> widgets;
    Place place;  ///< of the form, as last seen or told
    bool placed = false;
    QRect outer;           ///< the place that we gave the window, with what the desktop puts around it
    QMargins around;       ///< what that was taken for
    bool framed = false;   ///< what it is has been seen
    bool filled = false;   ///< the window was made to fill the screen, and has no other place yet
    bool placing = false;  ///< the window is moved by us
    bool placePending = false;
};

namespace {

/// How much of the main form's caption is its title.
constexpr std::size_t kTitleWidth = 50;
/// How long the desktop may take to make a window the active one.
constexpr int kActivationMs = 500;

QString TitleOf(const Form& form) {
    const std::string& caption = form.Caption();
    return ToQt(form.design.dialog ? caption : caption.substr(0, kTitleWidth)).trimmed();
}

bool CoversScreen(const QRect& place, const QRect& area) {
    return place.width() >= area.width() && place.height() >= area.height();
}

bool IsUnplaced(const Form& form) {
    return form.FormPlace() == Place{.width = form.design.width, .height = form.design.height};
}

/// A form that has no place of its own yet takes the share of the screen that its design has of the design's screen.
QRect DefaultPlace(const Form& form, const QRect& area) {
    constexpr double kDesignWidth = 9600;
    constexpr double kDesignHeight = 7200;
    const double share =
        std::min(area.width() / (kDesignWidth / kUnitsPerPixel), area.height() / (kDesignHeight / kUnitsPerPixel));
    const double perUnit = share / kUnitsPerPixel;
    QRect place{0, 0, qRound(form.design.width * perUnit), qRound(form.design.height * perUnit)};
    if (!form.design.dialog) {
        place.setSize(area.size());
    }
    place.moveCenter(area.center());
    return place;
}

QRect InPixels(const Place& place) {
    return QRectF{place.left / kUnitsPerPixel, place.top / kUnitsPerPixel, place.width / kUnitsPerPixel,
                  place.height / kUnitsPerPixel}
        .toRect();
}

Place InUnits(const QRect& pixels) {
    return {pixels.x() * kUnitsPerPixel, pixels.y() * kUnitsPerPixel, pixels.width() * kUnitsPerPixel,
            pixels.height() * kUnitsPerPixel};
}

/// The nearest to it in the area, smaller where it has to be.
QRect Within(QRect place, const QRect& area) {
    place.setSize(place.size().boundedTo(area.size()));
    place.moveLeft(std::clamp(place.left(), area.left(), area.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), area.top(), area.bottom() + 1 - place.height()));
    return place;
}

QMargins MarginsOf(const QWidget& window) {
    return window.windowHandle() == nullptr ? QMargins{} : window.windowHandle()->frameMargins();
}

bool StepsThroughAll(const QKeyEvent& press) {
    return press.modifiers().testFlag(Qt::ControlModifier) &&
           (press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab);
}

/// The form whose window a widget is in; null for those of dialogs and menus.
Form* FormOf(QObject* object) {
    if (!object->isWidgetType()) {
        return nullptr;
    }
    auto* window = dynamic_cast<FormWindow*>(static_cast<QWidget*>(object)->window());
    return window == nullptr ? nullptr : &window->TheForm();
}

}  // namespace

WindowHost::WindowHost(Desk& desk, QtPump& pump) : desk_{desk}, pump_{pump}, input_{desk, pump} {
    using FormEvent = DeskOutlets::FormEvent;
    desk_.outlets.controlChanged = [this](Control& control) { dirtyControls_.insert(&control); };
    desk_.outlets.controlAdded = [this](Control& control) {
        if (const auto view = views_.find(&control.form); view != views_.end()) {
            AddWidget(*view->second, control);
        }
    };
    desk_.outlets.controlRemoved = [this](Control& control) { RemoveWidget(control); };
    desk_.outlets.formChanged = [this](Form& form, FormEvent /*event*/) { dirtyForms_.insert(&form); };
    desk_.outlets.menuOpened = [this](MenuEntry* entry) {
        for (const auto& [form, view] : views_) {
            const bool its = entry != nullptr && &entry->form == form;
            view->menus->Open(its ? entry : nullptr);
        }
    };
    desk_.outlets.announced = [this](std::string_view words) { announcer_.Add(ToQt(words)); };
    pump_.onShow = [this] { Flush(); };
    desk_.outlets.png = [this](const Raster& picture) { return PngOf(picture); };
    SpeakWholeFields();
    qApp->installEventFilter(this);
}

WindowHost::~WindowHost() {
    qApp->removeEventFilter(this);
    pump_.onShow = {};
    desk_.outlets = {};
}

QWidget* WindowHost::WindowOf(const Form& form) const {
    const auto found = views_.find(&form);
    return found == views_.end() ? nullptr : found->second->window.get();
}

/// Alt, pressed and let go with nothing between, opens the menu bar. The desktop may take the window away meanwhile.
void WindowHost::WatchAlt(const QObject& watched, const QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress: {
            const auto& press = static_cast<const QKeyEvent&>(event);
            altAlone_ = press.key() == Qt::Key_Alt && (press.modifiers() & ~Qt::AltModifier) == 0;
            break;
        }
        case QEvent::KeyRelease: {
            const auto& release = static_cast<const QKeyEvent&>(event);
            if (altAlone_ && release.key() == Qt::Key_Alt && !release.isAutoRepeat() && watched.isWidgetType()) {
                altAlone_ = false;
                input_.Do([this] { desk_.OpenMenuBar(); });
            }
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::WindowDeactivate:
            altAlone_ = false;
            break;
        default:
            break;
    }
}

bool WindowHost::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::InputMethod:
            break;
        case QEvent::Wheel:
        case QEvent::WindowDeactivate:
            WatchAlt(*watched, *event);
            return false;
        case QEvent::MouseButtonPress:
            WatchAlt(*watched, *event);
            if (Form* form = FormOf(watched); form != nullptr && form != desk_.Active()) {
                awaited_ = nullptr;
                OnActivated(*form);
            }
            return false;
        default:
            return false;
    }
    if (FormOf(watched) == nullptr || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    WatchAlt(*watched, *event);
    if (event->type() == QEvent::KeyPress) {
        if (StepsThroughAll(*static_cast<QKeyEvent*>(event))) {
            const bool backwards = static_cast<QKeyEvent*>(event)->modifiers().testFlag(Qt::ShiftModifier);
            input_.Do([this, backwards] { FocusNext(backwards); });
        } else if (const auto key = KeyFromEvent(*static_cast<QKeyEvent*>(event))) {
            input_.Press(*key);
        }
    } else if (event->type() == QEvent::InputMethod) {
        auto& composed = *static_cast<QInputMethodEvent*>(event);
        for (const Key& key : KeysFromText(composed.commitString())) {
            input_.Press(key);
        }
        composed.setCommitString({});
        return false;  // the widget shows what is still being composed
    }
    event->accept();
    return true;
}

/// Tab itself visits what the program calls a tab stop. So that nothing is out of a keyboard's reach, Ctrl+Tab visits
/// all that can have the focus, in reading order.
void WindowHost::FocusNext(bool backwards) {
    Form* form = desk_.Active();
    const auto view = views_.find(form);
    if (view == views_.end()) {
        return;
    }
    const auto cornerOf = [&view](const Control* control) {
        const QWidget& widget = view->second->widgets.at(control)->Widget();
        const QPoint corner = widget.mapTo(widget.window(), QPoint{});
        return std::pair{corner.y(), corner.x()};
    };
    std::vector<Control*> stops;
    std::ranges::copy_if(form->Controls(), std::back_inserter(stops), [&view](const Control* control) {
        return control->CanTakeFocus() && view->second->widgets.contains(control);
    });
    if (stops.empty()) {
        return;
    }
    std::ranges::stable_sort(stops, {}, cornerOf);
    if (backwards) {
        std::ranges::reverse(stops);
    }
    const auto present = std::ranges::find(stops, form->Focus());
    const bool wraps = present == stops.end() || present + 1 == stops.end();
    (wraps ? stops.front() : *(present + 1))->SetFocus();
}

/// Drawn anew, as large as a wide screen.
std::string WindowHost::PngOf(const Raster& picture) const {
    constexpr double kWide = 2560;
    const auto view = views_.find(&picture.form);
    if (view == views_.end() || !view->second->widgets.contains(&picture)) {
        return tallyhut::PngOf(picture.Image());
    }
    QWidget& widget = view->second->widgets.at(&picture)->Widget();
    const double scale = std::max(kWide / std::max(widget.width(), 1), 1.0);
    QImage image{(QSizeF{widget.size()} * scale).toSize(), QImage::Format_RGB32};
    image.setDevicePixelRatio(scale);
    image.fill(widget.palette().color(QPalette::Window));
    widget.parentWidget()->render(&image, {}, QRegion{widget.geometry()}, QWidget::DrawChildren);
    QByteArray bytes;
    QBuffer buffer{&bytes};
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

void WindowHost::Flush() {
    for (Form* form : std::exchange(dirtyForms_, {})) {
        SyncForm(*form);
    }
    SyncControls();
    for (const auto& [form, view] : views_) {
        LearnMargins(*view);
        SyncFocus(*view);
    }
    SyncActive();
    announcer_.Tell();
}

void WindowHost::SyncControls() {
    if (dirtyControls_.empty()) {
        return;
    }
    std::set<FormView*> touched;
    for (Control* control : std::exchange(dirtyControls_, {})) {
        const auto found = views_.find(&control->form);
        if (found == views_.end()) {
            continue;
        }
        FormView& view = *found->second;
        if (control->kind == ControlKind::Menu) {
            view.menus->Sync(static_cast<MenuEntry&>(*control));
        } else if (control->kind == ControlKind::Frame) {
            for (const auto& [inside, widget] : view.widgets) {
                widget->Sync();
            }
        }
        if (const auto widget = view.widgets.find(control); widget != view.widgets.end()) {
            widget->second->Sync();
            view.layout->Changed(*widget->second);
            touched.insert(&view);
        }
    }
    for (FormView* view : touched) {
        view->layout->Settle();
    }
}

WindowHost::FormView& WindowHost::ViewOf(Form& form) {
    std::unique_ptr<FormView>& view = views_[&form];
    if (view) {
        return *view;
    }
    view = std::make_unique<FormView>();
    view->window = std::make_unique<FormWindow>(form);
    FormWindow& window = *view->window;
    view->menus = std::make_unique<FormMenus>(form, input_, window);
    view->layout = MakeLayout(form, window, *view->menus);
    for (Control* control : form.Controls()) {
        AddWidget(*view, *control);
    }
    window.outlets.closeAsked = [this, &form] { input_.Do([&form] { form.RequestClose(); }); };
    window.outlets.activated = [this, &form] { OnActivated(form); };
    window.outlets.minimised = [this, &form](bool minimised) {
        if (minimised != form.IsMinimised()) {
            input_.Do([&form, minimised] { minimised ? form.Minimise() : form.Restore(); });
        }
    };
    window.outlets.unmaximised = [this, shown = view.get()] {
        if (std::exchange(shown->filled, false)) {
            const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
            constexpr int kAround = 16;  // of the area's side, on each side
            const int x = area.width() / kAround;
            const int y = area.height() / kAround;
            shown->framed = !margins_.isNull();
            SetOuterPlace(*shown, area.adjusted(x, y, -x, -y));
        }
    };
    window.outlets.resized = [this, shown = view.get()] {
        LearnMargins(*shown);
        shown->layout->Arrange();
        TellPlace(*shown);
    };
    window.outlets.moved = [this, shown = view.get()] {
        LearnMargins(*shown);
        TellPlace(*shown);
    };
    window.outlets.paletteChanged = [this, &form] { MarkAll(form); };
    return *view;
}

void WindowHost::AddWidget(FormView& view, Control& control) {
    ControlWidget* widget = MakeWidget(control, input_, view.layout->ParentOf(control));
    if (widget == nullptr) {
        return;
    }
    view.widgets[&control] = widget;
    view.layout->Add(*widget);
    widget->Sync();
    dirtyControls_.insert(&control);
}

void WindowHost::RemoveWidget(Control& control) {
    dirtyControls_.erase(&control);
    const auto view = views_.find(&control.form);
    if (view == views_.end()) {
        return;
    }
    const auto found = view->second->widgets.find(&control);
    if (found != view->second->widgets.end()) {
        ControlWidget* widget = found->second;
        view->second->widgets.erase(found);
        view->second->layout->Remove(*widget);
        delete &widget->Widget();
    }
}

void WindowHost::SyncForm(Form& form) {
    if (!form.IsVisible()) {
        if (QWidget* window = WindowOf(form)) {
            window->hide();
        }
        return;
    }
    FormView& view = ViewOf(form);
    FormWindow& window = *view.window;
    window.setWindowTitle(TitleOf(form));
    window.setAccessibleName(TitleOf(form));
    PutInPlace(view);
    if (form.IsMinimised()) {
        if (!window.isMinimized()) {
            window.showMinimized();
        }
        return;
    }
    if (window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    }
    if (!window.isVisible()) {
        const Qt::WindowModality modality = form.IsModal() ? Qt::ApplicationModal : Qt::NonModal;
        window.setWindowModality(modality);
        SyncControls();
        view.layout->Arrange();
        window.show();
    }
}

/// Follows the form's place; a place that the window has told itself needs no answer.
void WindowHost::PutInPlace(FormView& view) {
    const Form& form = view.window->TheForm();
    if (view.placed && view.place == form.FormPlace()) {
        return;
    }
    view.placed = true;
    view.place = form.FormPlace();
    const QRect whole = QGuiApplication::primaryScreen()->geometry();
    const QRect workArea = QGuiApplication::primaryScreen()->availableGeometry();
    QRect wanted = IsUnplaced(form) ? DefaultPlace(form, workArea) : InPixels(view.place);
    if (form.design.neverActive) {
        wanted.moveTop(workArea.top());  // above the form that keys go to
    }
    view.placing = true;
    view.filled = !form.design.dialog && (CoversScreen(wanted, workArea) || CoversScreen(wanted, whole));
    if (view.filled) {
        view.window->setGeometry(workArea);
        view.window->setWindowState(view.window->windowState() | Qt::WindowMaximized);
    } else {
        view.window->setWindowState(view.window->windowState() & ~Qt::WindowMaximized);
        SetOuterPlace(view, wanted);
    }
    view.placing = false;
}

void WindowHost::SetOuterPlace(FormView& view, const QRect& outer) {
    view.outer = outer;
    view.around = view.window->TheForm().design.neverActive ? QMargins{} : margins_;
    view.window->setGeometry(Within(outer, QGuiApplication::primaryScreen()->availableGeometry()) - view.around);
}

/// The desktop tells what it puts around a window only when the window is there. The first place of it is made good
/// then; later the operator may have moved it. A window that fills the screen has less around it than others.
void WindowHost::LearnMargins(FormView& view) {
    const QMargins around = MarginsOf(*view.window);
    if (view.framed || around.isNull() || !view.window->isVisible() || view.window->isMaximized()) {
        return;
    }
    view.framed = true;
    margins_ = around;
    if (view.around != around) {
        SetOuterPlace(view, view.outer);
    }
}

/// The operator has moved the window or changed its size. Several such events at once are one to the form. A form that
/// does nothing with its size keeps its place: the layout fits what stands there into the window.
void WindowHost::TellPlace(FormView& view) {
    if (view.placing || view.placePending || !view.window->isVisible() || view.window->isMinimized() ||
        !view.window->TheForm().Form_Resize) {
        return;
    }
    view.placePending = true;
    input_.Do([this, form = &view.window->TheForm()] {
        FormView& told = *views_.at(form);
        told.placePending = false;
        const QRect now = told.window->geometry() + MarginsOf(*told.window);
        if (now != InPixels(form->FormPlace())) {
            told.place = InUnits(now);
            form->SetFormPlace(told.place);
        }
    });
}

void WindowHost::SyncFocus(const FormView& view) {
    const Form& form = view.window->TheForm();
    const auto found = view.widgets.find(form.Focus());
    QWidget* wanted = found == view.widgets.end() ? nullptr : &found->second->Widget();
    QWidget* present = view.window->focusWidget();
    if (wanted == present || !view.window->isVisible()) {
        return;
    }
    if (wanted != nullptr) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else if (present != nullptr) {
        present->clearFocus();
    }
}

void WindowHost::SyncActive() {
    // While a dialog of the desktop is open it has the keys; afterwards they go back to where they were.
    const bool dialogNow =
        QApplication::activeModalWidget() != nullptr && FormOf(QApplication::activeModalWidget()) == nullptr;
    if (dialogNow) {
        dialogOpen_ = true;
        return;
    }
    Form* active = desk_.Active();
    if (active == shownActive_ && !std::exchange(dialogOpen_, false)) {
        return;
    }
    dialogOpen_ = false;
    shownActive_ = active;
    MarkFocus();
    QWidget* window = active == nullptr ? nullptr : WindowOf(*active);
    if (window == nullptr) {
        return;
    }
    window->raise();
    if (!window->isActiveWindow()) {
        awaited_ = active;
        QTimer::singleShot(kActivationMs, this, [this] { awaited_ = nullptr; });
        window->activateWindow();
    }
}

/// Where keys go shows in the active form alone.
void WindowHost::MarkFocus() {
    for (const auto& [form, view] : views_) {
        const auto found = view->widgets.find(form->Focus());
        if (found != view->widgets.end()) {
            found->second->Sync();
        }
    }
}

/// The desktop has made a window the active one: by the operator's wish, unless it is the echo of ours.
void WindowHost::OnActivated(Form& form) {
    if (awaited_ != nullptr) {
        if (awaited_ == &form) {
            awaited_ = nullptr;
        }
        return;
    }
    if (&form == desk_.Active()) {
        return;
    }
    input_.Do([this, &form] {
        desk_.Activate(form);
        shownActive_ = nullptr;  // where the form did not come to the front, the desktop is put right
    });
}

void WindowHost::MarkAll(const Form& form) {
    for (Control* control : form.Controls()) {
        dirtyControls_.insert(control);
    }
}

}  // namespace tallyhut
