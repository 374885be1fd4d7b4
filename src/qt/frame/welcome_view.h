// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QScrollArea>

class QBoxLayout;
class QGridLayout;

namespace quorvane {

/// What fills the middle of the frame while no worksheet is open: New, Open and the tour, the
/// recent files, and the examples with their pictures. It lies behind the worksheets.
class WelcomeView : public QScrollArea {
public:
    /// `space` is the widget whose whole area it takes.
    explicit WelcomeView(QWidget* space);
    /// Shows or hides it; the files are listed when it comes.
    void Refresh(bool hasWorksheets);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void List();
    QWidget* Commands();
    QWidget* ExampleList();
    void Arrange();

    QBoxLayout* parts_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QList<QWidget*> examples_;
};

}  // namespace quorvane
