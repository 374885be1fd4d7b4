// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <functional>
#include <vector>

#include "qt/dialogs/form_view.h"

class QScrollBar;

namespace quorvane {

/// An icon of the catalogue page or of the panel.
class IconTile : public QLabel {
public:
    IconTile(const QString& name, QWidget* holder);
    void ShowCell(int cell);

    std::function<void()> Entered;  ///< The pointer moves over it, or the focus comes to it
    std::function<void(Qt::MouseButton)> Pressed;
    std::function<void()> Chosen;  ///< Enter
    QByteArray Carried;            ///< The data of a drag; empty when it can't be dragged

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int cell_ = -1;
    QPoint pressedAt_;
};

/// The dialog in which a toolbox is built: the icons of a page are dragged into the panel. By
/// keyboard, the arrows walk through the catalogue, Enter puts the icon in, and Delete takes one
/// out.
class ConfigToolboxView : public FormView {
public:
    ConfigToolboxView(const Form& form, QWidget* parent);
    void Refresh() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void MakeCatalogue();
    void RefreshPanel();
    void Walk(int tile, int step);

    QWidget* page_;
    QScrollBar* scroll_;
    QWidget* panel_;
    std::vector<IconTile*> catalogue_;
    std::vector<IconTile*> icons_;  ///< Of the panel, by their index
    int turned_ = 0;                ///< Turns of the wheel that don't make a row yet
};

}  // namespace quorvane
