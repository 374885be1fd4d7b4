// SPDX-License-Identifier: MIT
#include "qt/frame/splash_view.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "shell/start_up.h"

namespace quorvane {

SplashView::SplashView() : QWidget(nullptr, Qt::SplashScreen) {
    setObjectName("frmSplash");
    setStyleSheet("background: #4C5866; color: #ECEFF2;");
    constexpr int pictureSize = 128;
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(":/quorvane.svg").pixmap(pictureSize, pictureSize));
    name_ = new QLabel;
    name_->setObjectName("lblProductName");
    name_->setStyleSheet("font-size: 26pt; font-weight: bold;");
    version_ = new QLabel;
    version_->setObjectName("lblVersion");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(60, 36, 60, 36);
    rows->setSpacing(10);
    for (auto* label : {picture, name_, version_}) rows->addWidget(label, 0, Qt::AlignHCenter);
}

void SplashView::Refresh() {
    const bool show = frmSplash.Form.Visible;
    if (isVisible() == show) return;
    name_->setText(ToScreen(frmSplash.lblProductName.Caption));
    version_->setText(ToScreen(frmSplash.lblVersion.Caption));
    if (show) {
        adjustSize();
        move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    }
    setVisible(show);
}

void SplashView::mousePressEvent(QMouseEvent*) { Dispatch(frmSplash_Frame1_Click); }
void SplashView::keyPressEvent(QKeyEvent*) { Dispatch(frmSplash_KeyPress); }

}  // namespace quorvane
