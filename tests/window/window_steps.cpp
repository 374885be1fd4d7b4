// SPDX-License-Identifier: MIT
// The words by which tables tell what a user does with mouse and keys, and what then shows.
#include <stdexcept>

#include "matlab_link/mfile_index.h"
#include "matlab_link/run_report.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

const std::map<std::string, Qt::CursorShape> cursors = {
    {"arrow", Qt::ArrowCursor}, {"cross", Qt::CrossCursor}, {"forbidden", Qt::ForbiddenCursor}};

Qt::KeyboardModifiers Held(const QString& how) {
    return how.contains("Shift") ? Qt::ShiftModifier : Qt::NoModifier;
}

std::string NumbersOf(const QRect& area) {
    return Show(
        Reals{double(area.x()), double(area.y()), double(area.width()), double(area.height())});
}
std::string NumbersOf(const QPoint& at) { return Show(Reals{double(at.x()), double(at.y())}); }

/// What a widget says.
QString TextOf(const QWidget* widget) {
    if (!widget) return "-";
    for (const char* name : {"plainText", "text", "currentText"}) {
        const auto text = widget->property(name);
        if (text.isValid()) return text.toString();
    }
    return "";
}

/// The entries of a menu bar from top to bottom, without those that list windows.
QList<QAction*> EntriesOf(const QList<QAction*>& actions) {
    QList<QAction*> entries;
    for (auto* action : actions) {
        const auto name = action->objectName();
        if (name.isEmpty() || name.startsWith("mnuWindowList")) continue;
        entries.append(action);
        if (action->menu()) entries += EntriesOf(action->menu()->actions());
    }
    return entries;
}

/// The first entry that isn't as its row and its record say, "" for none.
template <class Rows, class Records>
std::string Difference(const QList<QAction*>& entries, const Rows& rows, const Records& records) {
    if (entries.size() != static_cast<int>(rows.size())) return ", but for the number of entries";
    for (int i = 0; const auto& row : rows) {
        const auto* entry = entries[i++];
        const auto* record = MenuRecord(records, row.Control, row.Index);
        const bool captioned = record && !record->Caption.empty();
        const auto caption = ToScreen(captioned ? record->Caption : std::string(row.Caption));
        if (!entry->objectName().startsWith(ToScreen(row.Control)) ||
            entry->isSeparator() != (row.Caption == "-") ||
            (!entry->isSeparator() && entry->text() != caption) ||
            entry->shortcut().toString() != ToScreen(row.Shortcut) ||
            entry->isChecked() != (record && record->Checked) ||
            entry->isVisible() != (!record || record->Visible)) {
            return ", but for " + std::string(row.Control);
        }
    }
    return "";
}

/// "|" is Tab, "<" Home, "#" Backspace, "!" a click on another option.
void TypeKeys(QDialog& dialog, QWidget* control, const QString& keys) {
    const std::map<QChar, Qt::Key> named = {
        {'|', Qt::Key_Tab}, {'<', Qt::Key_Home}, {'#', Qt::Key_Backspace}};
    for (const auto key : keys) {
        if (key == '!') {
            Play("opn(1)")(dialog);
        } else if (named.contains(key)) {
            QTest::keyClick(control, named.at(key));
        } else {
            QTest::keyClicks(control, QString(key));
        }
    }
}

QString TypeInto(QDialog& dialog, const QString& field, QString keys) {
    dialog.activateWindow();  // Off-screen it doesn't come to the front by itself.
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isActiveWindow(); }));
    auto* control = dialog.findChild<QWidget*>(field);
    if (dialog.focusWidget() != control) control->setFocus(Qt::TabFocusReason);
    TypeKeys(dialog, control, keys);
    const auto typed = TextOf(control);
    if (auto* line = qobject_cast<QLineEdit*>(control); line && keys.size() < 9) {
        QApplication::clipboard()->setText(keys.remove(QRegularExpression("[|<#!]")));
        line->setFocus();
        line->selectAll();
        line->paste();
        line->clearFocus();
        EXPECT_EQ(line->text(), typed) << "pasted";
    }
    dialog.done(QDialog::Accepted);
    return typed;
}

void Click(QWidget* widget, const QString& how) {
    if (how == "double") {
        QTest::mouseDClick(widget, Qt::LeftButton);
        return QTest::mouseRelease(widget, Qt::LeftButton);
    }
    const auto button = how.startsWith("right")    ? Qt::RightButton
                        : how.startsWith("middle") ? Qt::MiddleButton
                                                   : Qt::LeftButton;
    QTest::mouseClick(widget, button, Held(how));
}

}  // namespace

QWidget* WindowTest::Seek(const QString& name, int document) const {
    const QList<QWidget*> rooms = {QApplication::activeModalWidget(), Window(document),
                                   frame_.get()};
    for (const auto* room : rooms) {
        for (auto* found : room ? room->findChildren<QWidget*>(name) : QList<QWidget*>()) {
            if (found->isVisible()) return found;
        }
    }
    return nullptr;
}

template <class Widget>
Widget* WindowTest::Find(A a) const {
    auto* found = dynamic_cast<Widget*>(Seek(ToScreen(a.Text), a[0]));
    if (!found) throw std::runtime_error("nothing of this name shows: " + a.Text);
    return found;
}

QWidget* WindowTest::WindowOf(A a) {
    if (a.Text == "frame") return &Frame();
    if (!a.Text.empty()) return Find(a);
    return Window(a[0]);
}

Hand WindowTest::AnswerOf(const QString& text) const {
    const std::map<QString, Hand> hands = {
        {"ok", Press(QMessageBox::Ok)}, {"yes", Press(QMessageBox::Yes)},
        {"no", Press(QMessageBox::No)}, {"cancel", Press(QMessageBox::Cancel)},
        {"escape", Cancel()},           {"nothing", [](QDialog&) {}}};
    if (const auto hand = hands.find(text); hand != hands.end()) return hand->second;
    const auto what = text.section(' ', 0, 0), rest = text.section(' ', 1);
    if (what == "file") return PickFile(File(rest));
    if (what == "type") return TypeIn(rest);
    if (what == "paste") {
        return [=](QDialog& prompt) {
            prompt.findChild<QLineEdit*>()->insert(rest);
            prompt.accept();
        };
    }
    if (what == "color") {
        return [=](QDialog& colors) {
            static_cast<QColorDialog&>(colors).setCurrentColor(QColor(rest));
            colors.accept();
        };
    }
    return Play(text);
}

Words WindowTest::MouseAndKeys() {
    const auto sent = [](QWidget* widget, auto&& event) {
        QCoreApplication::sendEvent(widget, &event);
    };
    return {
        {"answer", Step([this](A a) { Answers.push_back(AnswerOf(ToScreen(a.Text))); })},
        {"play", Step([](A a) {
             Play(ToScreen(a.Text))(*static_cast<QDialog*>(QApplication::activeModalWidget()));
         })},
        {"choose", Step([this](A a) { Choose(ToScreen(a.Text)); })},
        {"place", Step([this](A a) {
             Place(ToScreen(a.Text), {a[0], a[1]}, a[2]);
         })},
        {"join", Step([this](A a) { Join(a[0], a[1], a[2]); })},
        {"band", Step([this](A a) {
             Band({a[0], a[1]}, {a[2], a[3]}, a[4]);
         })},
        {"click", Step([this](A a) {
             Click({a[0], a[1]}, a[2]);
         })},
        {"press", Step([this](A a) {
             auto rest = a;
             rest.Text = TakeWord(rest.Text);
             testing::Click(Find(rest), ToScreen(a.Text).section(' ', 1));
         })},
        {"drag", Step([this](A a) {
             const auto ends = ToScreen(a.Text).split(" to ");
             Drag(Seek(ends[0]), Seek(ends[1]), {a[0], a[1]});
         })},
        {"hover", Step([this](A a) {
             QTest::mouseMove(Find({{}, a.Text}), a.Given.empty() ? QPoint() : QPoint(a[0], a[1]));
         })},
        {"pointer", Step([this](A a) {
             QCursor::setPos(Find({{}, a.Text})->mapToGlobal(QPoint(a[0], a[1])));
         })},
        {"wheel", Step([=, this](A a) {
             const auto text = ToScreen(a.Text);
             auto* over = Seek(text.section(' ', -1));
             sent(over, QWheelEvent({5, 5}, over->mapToGlobal(QPointF(5, 5)), {}, {a[0], a[1]},
                                    Qt::NoButton, Held(text), Qt::NoScrollPhase, false));
         })},
        {"keys", Step([this](A a) {
             for (const auto& key : ToScreen(a.Text).split(' ')) {
                 const auto typed = QKeySequence(key)[0];
                 Type(typed.key(), typed.keyboardModifiers());
             }
         })},
        {"hit", Step([this](A a) {
             const auto key = QKeySequence(ToScreen(a.Text).section(' ', 1))[0].key();
             QTest::keyClick(Seek(ToScreen(a.Text).section(' ', 0, 0)), key);
         })},
        {"fill", Step([this](A a) {
             Find<QLineEdit>({{}, a.Text.substr(0, a.Text.find(' '))})
                 ->setText(ToScreen(a.Text).section(' ', 1));
         })},
        {"type", Step([](A a) {
             const auto* window = QApplication::activePopupWidget();
             if (!window) window = QApplication::activeModalWidget();
             QTest::keyClicks(window ? window->focusWidget() : QApplication::focusWidget(),
                              ToScreen(a.Text.substr(1)));
         })},
        // What stands in a field of a command's dialog after these keys, and after a paste of them.
        {"typed", Seen([this](A a) {
             auto keys = ToScreen(a.Text);
             const auto command = keys.section(' ', 0, 0), field = keys.section(' ', 1, 1);
             keys = keys.section(' ', 2);
             QString text;
             Answers = {[&](QDialog& dialog) { text = TypeInto(dialog, field, keys); }};
             Choose(command);
             EditMode = 1;
             return ToCore(text);
         })},
        {"commit", Step([=](A a) {
             QInputMethodEvent event("", {});
             event.setCommitString(ToScreen(a.Text));
             sent(QApplication::activeModalWidget()->focusWidget(), event);
         })},
        {"hold", Step([this](A a) { QTest::keyPress(Find(a), Qt::Key_Shift); })},
        {"let", Step([this](A a) { QTest::keyRelease(Find(a), Qt::Key_Shift); })},
        {"reach", Step([](A a) {
             auto* dialog = QApplication::activeModalWidget();
             const auto name = ToScreen(a.Text);
             for (int i = 0; i < 60 && dialog->focusWidget()->objectName() != name; ++i) {
                 QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
             }
             EXPECT_EQ(ToCore(dialog->focusWidget()->objectName()), a.Text);
         })},
    };
}

Words WindowTest::Looks() {
    return {
        {"shows", Seen([this](A a) { return Seek(ToScreen(a.Text), a[0]) != nullptr; })},
        {"area", Seen([this](A a) { return NumbersOf(Find(a)->geometry()); })},
        {"pos", Seen([this](A a) { return NumbersOf(Find(a)->pos()); })},
        {"from_centre",
         Seen([this](A a) { return NumbersOf(Find(a)->pos() - Surface()->rect().center()); })},
        {"text", Seen([this](A a) { return ToCore(TextOf(Seek(ToScreen(a.Text), a[0]))); })},
        {"tip", Seen([this](A a) { return ToCore(Find(a)->toolTip()); })},
        // What a screen reader is told of a row of a list.
        {"reads", Seen([this](A a) {
             auto* list = QAccessible::queryAccessibleInterface(Find(a))->tableInterface();
             auto* cell = list->cellAt(a[0], a.Given.size() > 1 ? a[1] : 0);
             const auto state = cell->state();
             return ToCore(cell->text(QAccessible::Name)) + (state.selected ? " *" : "");
         })},
        {"asks", Seen([](A) { return linkReport.wantsValues; })},
        // The tool tip that comes up by itself.
        {"told", Seen([](A) {
             EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
             return ToCore(QToolTip::text());
         })},
        // A run that leaves these values at the boxes from 1 on, or failures: "!no".
        {"ran", Step([](A a) {
             Dispatch([&] {
                 BeginReport(0);
                 for (std::int16_t box = 0; const auto& left : Split(a.Text, '|')) {
                     ReportRunning({++box});
                     ReportValue(std::to_string(box) + ":" + left + "\n");
                     if (left[0] == '!') ReportFailure(box, left);
                 }
             });
         })},
        {"role", Seen([this](A a) {
             return static_cast<int>(QAccessible::queryAccessibleInterface(Find(a))->role());
         })},
        {"cursor", Seen([this](A a) {
             for (const auto& [name, shape] : cursors) {
                 if (Find(a)->cursor().shape() == shape) return name;
             }
             return std::string("another");
         })},
        {"focus",
         {[this](A a) { Find(a)->setFocus(); },
          [](A) {
              const auto* dialog = QApplication::activeModalWidget();
              const auto* widget = dialog ? dialog->focusWidget() : QApplication::focusWidget();
              return widget ? ToCore(widget->objectName()) : "";
          },
          {}}},
        {"value",
         {{},
          [this](A a) { return Show(Find(a)->property("value").toInt()); },
          [this](A a, const std::string& text) {
              Find<QAbstractSlider>(a)->setValue(std::stoi(text));
          }}},
        {"items", Seen([this](A a) {
             const auto* model = Find<QAbstractItemView>(a)->model();
             QStringList items;
             for (int i = 0; i < model->rowCount(); ++i) {
                 items += model->index(i, 0).data().toString().section('/', -1);
             }
             return ToCore(items.join(", "));
         })},
        {"maximum", Seen([this](A a) { return Find<QAbstractSlider>(a)->maximum(); })},
        {"colored", Seen([this](A a) {
             const auto picture = Screen(Surface(a[3]));
             const auto sheet = picture.pixelColor(5, 5);
             const auto color = a.Text == "sheet"     ? sheet
                                : a.Text == "inverse" ? QColor(sheet.rgb() ^ 0xFFFFFFU)
                                                      : QColor(ToScreen(a.Text));
             return ColoredIn(picture, a[0], {a[1], a[2]}, color);
         })},
        {"fades", Step([this](A a) {
             EXPECT_TRUE(QTest::qWaitFor([&] {
                 return ColoredIn(Screen(Surface()), a[0], {a[1], a[2]}, ToScreen(a.Text)) == 0;
             }));
         })},
        {"keep", Step([this](A a) { kept_ = Screen(Find(a)); })},
        {"kept", Seen([this](A a) { return Screen(Find(a)) == kept_; })},
        {"clipboard", Seen([](A) { return ToCore(QGuiApplication::clipboard()->text()); })},
        {"asked", Seen([this](A) { return ToCore(std::exchange(Asked, {}).join(" | ")); })},
        {"named", Seen([this](A a) {
             QStringList names;
             for (int i = 1; i < 20; ++i) {
                 if (const auto* box = Box(i, a[0])) names.append(box->accessibleName());
             }
             return ToCore(names.join(", "));
         })},
        // The keys of the toolbox's buttons that show, and the entries of recent files.
        {"tools", Seen([this](A) {
             QTest::qWait(0);  // Buttons that were taken away go
             QStringList keys;
             for (int i = 1; const auto* tool = Seek(QString("cmd(%1)").arg(i)); ++i) {
                 keys += tool->accessibleName();
             }
             return ToCore(keys.join(", "));
         })},
        {"recent", Seen([this](A) {
             QStringList names;
             for (int i = 1; i <= 4; ++i) {
                 const auto* entry = Entry(QString("mnuFileArray(%1)").arg(i));
                 if (entry) names += QString("%1:%2").arg(i).arg(entry->text().section('/', -1));
             }
             return ToCore(names.join(' '));
         })},
    };
}

Words WindowTest::Frames() {
    return {
        {"start", Step([this](A) { Start(); })},
        {"exec", Seen([this](A a) {
             QTimer::singleShot(0, &watcher_, [=, this] { Choose(ToScreen(a.Text)); });
             QTimer::singleShot(5000, &watcher_, [] { QCoreApplication::exit(1); });
             return QApplication::exec();
         })},
        {"title", Seen([this](A a) {
             const auto* window = Window(a[0]);
             return window ? Here(ToCore(window->windowTitle())) : "none";
         })},
        {"close", Step([this](A a) { WindowOf(a)->close(); })},
        {"hide", Step([this](A a) {
             WindowOf(a)->hide();
             RefreshScreen();
         })},
        {"show", Step([this](A) { Frame().show(); })},
        {"drop", Step([this](A a) {
             QMimeData files;
             files.setUrls({QUrl::fromLocalFile(File(ToScreen(a.Text)))});
             QDragEnterEvent enter({}, Qt::CopyAction, &files, Qt::LeftButton, {});
             QCoreApplication::sendEvent(&Frame(), &enter);
             EXPECT_TRUE(enter.isAccepted());
             QDropEvent drop({}, Qt::CopyAction, &files, Qt::LeftButton, {});
             QCoreApplication::sendEvent(&Frame(), &drop);
         })},
        {"fills", Seen([this](A a) {
             QTest::qWait(0);
             return Window(a[0])->geometry() == Frame().Area()->viewport()->rect();
         })},
        {"minimized", Seen([this](A a) { return WindowOf(a)->isMinimized(); })},
        {"minimize", Step([this](A a) { WindowOf(a)->showMinimized(); })},
        {"bar", Seen([this](A) {
             const auto entries = EntriesOf(Frame().menuBar()->actions());
             return Documents.UpperBound() > 0 && Documents[1]
                        ? "document" + Difference(entries, documentMenu, *Documents[1])
                        : "frame" + Difference(entries, frameMenu, frmMDI);
         })},
        {"active", Seen([this](A) -> std::string {
             const auto* window = Frame().Area()->activeSubWindow();
             return window ? ToCore(window->windowTitle()) : "none";
         })},
        {"windows", Seen([this](A) {
             QStringList list;
             for (int i = 1; const auto* entry = Entry(QString("mnuWindowList(%1)").arg(i)); ++i) {
                 list += entry->text() + (entry->isChecked() ? " *" : "");
             }
             return ToCore(list.join(", "));
         })},
        {"checked", Seen([this](A a) { return Entry(ToScreen(a.Text))->isChecked(); })},
        {"caption", Seen([this](A a) { return ToCore(Entry(ToScreen(a.Text))->text()); })},
    };
}

Words WindowTest::Dialogs() {
    return {
        {"home", Step([](A) {
             ProgramDirectory = CurrentDirectory();
             DriveRoots = {{'C', ProgramDirectory + "/"}};
         })},
        {"wait", Step([](A) { QTest::qWait(600); })},
        {"until", Step([this](A a) {
             const auto name = ToScreen(a.Text).section(' ', 0, 0);
             const auto text = ToScreen(a.Text).section(' ', 1);
             EXPECT_TRUE(QTest::qWaitFor([&] { return TextOf(Seek(name)).startsWith(text); }));
         })},
        {"go", Step([this](A a) {
             auto* list = Find<QListWidget>({{}, "Dir1"});
             const auto* item = list->findItems(ToScreen(a.Text), Qt::MatchExactly).at(0);
             const auto at = list->visualItemRect(item).center();
             QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
             QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
         })},
        {"begins", Seen([this](A) {
             const auto& files = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
             auto text = Here(ToCore(files.directory().path()));
             for (const auto& url : files.sidebarUrls()) {
                 const auto side = ToCore(url.toLocalFile());
                 if (Here(side) != side) text += " beside " + Here(side);
             }
             return text;
         })},
        {"bright", Seen([this](A a) {
             const auto face = Find<QToolButton>({{}, a.Text})->icon().pixmap(24).toImage();
             return face.pixelColor(a[0], a[1]).lightness() > 200;
         })},
        {"manual", Step([](A) {
             std::filesystem::copy(QUORVANE_SOURCE_DIR "/resources/help/QUORVANE.HLP", ".");
         })},
        {"contents", Step([this](A a) {
             auto* pages = Find<QTreeWidget>({{}, "helpContents"});
             pages->setCurrentItem(pages->topLevelItem(a[0]));
         })},
        {"page", Seen([this](A) {
             return ToCore(TextOf(Find({{}, "helpText"})).section('\n', 0, 0));
         })},
        {"found", Seen([this](A) {
             QTest::qWait(0);
             const auto* view = Find<QTextBrowser>({{}, "helpText"});
             EXPECT_TRUE(view->viewport()->rect().contains(view->cursorRect()));
             return ToCore(view->textCursor().selectedText());
         })},
    };
}

}  // namespace quorvane::testing
