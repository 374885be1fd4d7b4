// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QTimer;
class QToolButton;

namespace quorvane {

class QuickField;
class QuickPopup;

/// The bar along the frame's upper edge: buttons, the field "quick", and the state in words.
class BarView : public QWidget {
public:
    explicit BarView(QWidget* frame);
    /// Adds a button that shows and hides a panel, and remembers whether it shows.
    void AddPanel(const QString& name, const QString& caption, const QString& key, QWidget* panel);
    /// Shows what can be undone, what needs a worksheet that isn't there, and the state.
    void Refresh();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddButtons(const QString& from, const QString& to);
    void OpenQuick(bool boxesOnly);
    void AddZoomMenu();
    void AddKeys(QWidget* frame);
    void ShowState();
    void Toggle();
    void Escape();

    QList<QToolButton*> buttons_;
    QToolButton* zoomLevel_ = nullptr;
    QuickPopup* popup_;
    QuickField* quick_;
    QLabel* state_;
    QString text_;    ///< The state in full; the label may shorten it
    QTimer* expiry_;  ///< Looks again when what was said is over
};

}  // namespace quorvane
