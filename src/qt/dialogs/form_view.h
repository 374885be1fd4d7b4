// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "platform/form.h"

class QLineEdit;
class QListView;

namespace quorvane {

/// A dialog on the screen: the layout of the form's name with the controls of its table. What the
/// user does is copied into the records before a handler runs, and the records are shown after it.
class FormView : public QDialog {
public:
    FormView(const Form& form, QWidget* parent);
    ~FormView() override;
    /// Shows the records; closes when the form has hidden itself.
    virtual void Refresh();

protected:
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Run(const ControlRow& row);
    void FocusFirst();
    void ConnectText(const ControlRow& row, QLineEdit* line);
    void Connect(const ControlRow& row, QWidget* control);
    void ConnectList(QListView* view, const std::function<void()>& run);
    void RunTimer();
    void Activate();

    const Form& form_;
    const ControlRow* waiting_ = nullptr;  ///< The field in which a number is being typed
};

/// Shows the records on every form that is on the screen.
void RefreshForms();

}  // namespace quorvane
