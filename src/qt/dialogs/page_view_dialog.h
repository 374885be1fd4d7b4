// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace quorvane {

/// The page view on the screen: the whole sheet at small scale, as its record holds it.
class PageViewDialog : public QDialog {
public:
    explicit PageViewDialog(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void reject() override;
};

}  // namespace quorvane
