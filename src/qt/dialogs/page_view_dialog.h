// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace quorvane {

/// The page view on the screen: the whole sheet at small scale, as its record holds it.
class PageViewDialog : public QDialog {
public:
    /// `zoom` is that of the worksheet, in per cent.
    PageViewDialog(int zoom, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void reject() override;

private:
    int zoom_;
};

}  // namespace quorvane
