#pragma once

#include <QWidget>
#include <functional>

#include "toolkit/form.h"

namespace tallyhut {

/// What the desktop does to a form's window.
struct FormWindowOutlets {
    std::function<void()> closeAsked;
    std::function<void()> activated;
    std::function<void(bool minimised)> minimised;
    std::function<void()> unmaximised;
    std::function<void()> resized;
    std::function<void()> moved;
    std::function<void()> paletteChanged;
};

/// The top-level window of one form. Closes only when the form does.
class FormWindow : public QWidget {
public:
    explicit FormWindow(Form& form);

    Form& TheForm() const { return form_; }
    FormWindowOutlets outlets;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; }
    void paintEvent(QPaintEvent* event) override;

private:
    Form& form_;
};

}  // namespace tallyhut
