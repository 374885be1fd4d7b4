// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace quorvane {

/// The splash: the program's picture, name and version. A click or a key closes it.
class SplashView : public QWidget {
public:
    SplashView();
    void Refresh();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* name_;
    QLabel* version_;
};

}  // namespace quorvane
