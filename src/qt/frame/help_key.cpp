// SPDX-License-Identifier: MIT
#include "qt/frame/help_key.h"

#include <QApplication>
#include <QKeyEvent>

#include "diagram/box_table.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/help_window.h"
#include "shell/help.h"
#include "shell/help_pages.h"

namespace quorvane {

namespace {

/// The page of the innermost part around a widget that has one. On a worksheet it is that of the
/// box under the mouse or with the focus.
std::string_view PageAround(const FrameView& frame, const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const auto name = ToCore(widget->objectName());
        const int box = name == "main" ? frame.CurrentBox() : 0;
        const auto page = box > 0 ? HelpPageOfType(BoxOrFree(box).BoxType) : HelpPageOf(name);
        if (!page.empty()) return page;
    }
    return HelpPageOf("frmMDI");
}

class HelpKey : public QObject {
public:
    explicit HelpKey(FrameView& frame) : QObject(&frame), frame_(frame) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
        ShowHelpPage(ManualFile(), ToScreen(PageAround(frame_, static_cast<QWidget*>(watched))));
        return true;
    }

private:
    const FrameView& frame_;
};

}  // namespace

void AddHelpKey(FrameView& frame) { qApp->installEventFilter(new HelpKey(frame)); }

}  // namespace quorvane
