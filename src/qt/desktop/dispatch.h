// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace quorvane {

/// Runs one handler and shows the records afterwards. Every event of the screen comes through here.
/// A handler runs to its end before the next one starts: an event that arrives meanwhile, by
/// whatever way, is dropped. While a handler shows a dialog, only the events of that dialog are
/// accepted; they name the widget that they come from. Whatever the handler lets out is told as a
/// run-time error, 7 or 51 where it is none, to the user and ends the program.
void Dispatch(const std::function<void()>& handler, const QWidget* source = nullptr);

/// The same for a window's new size or state, or its coming to the front: that may happen at any
/// time and disturbs no handler.
void DispatchLayout(const std::function<void()>& handler);

/// Accepts the events of a dialog, as long as this lives.
class DialogScope {
public:
    DialogScope();
    ~DialogScope();
    DialogScope(const DialogScope&) = delete;
    DialogScope& operator=(const DialogScope&) = delete;

private:
    bool before_;
};

/// Shows the records on every window; the frame sets it.
extern std::function<void()> RefreshScreen;

}  // namespace quorvane
