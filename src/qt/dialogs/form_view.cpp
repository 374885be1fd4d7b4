// SPDX-License-Identifier: MIT
#include "qt/dialogs/form_view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

#include "platform/numbers.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/dialogs/form_layouts.h"
#include "qt/dialogs/list_box_model.h"
#include "qt/dialogs/option_list_layout.h"
#include "qt/dialogs/wrapped_text.h"
#include "qt/sheet/shape_painter.h"
#include "shell/about.h"

namespace quorvane {

namespace {

QList<FormView*> openForms;

constexpr int PreviewPixels = 64;

// Show: a record on its control.

bool HasGreatestWidth(const QWidget* control) { return control->maximumWidth() < QWIDGETSIZE_MAX; }

/// The tool tip holds the whole of a long text that the control shows in part.
void TellWhole(QWidget* control, const QString& shown, const QString& whole) {
    control->setAccessibleName(whole);
    control->setToolTip(shown == whole ? QString() : "<p>" + whole.toHtmlEscaped() + "</p>");
}

void Show(const Label& record, QWidget* control) {
    const auto whole = ToScreen(record.Caption).replace("\r\n", "\n");
    auto* label = qobject_cast<QLabel*>(control);
    const auto text = label && HasGreatestWidth(label)
                          ? WrappedText(whole, label->font(), label->maximumWidth())
                          : whole;
    if (label && label->text() != text) {
        label->setTextFormat(Qt::PlainText);
        label->setText(text);
        if (HasGreatestWidth(label)) TellWhole(label, text, whole);
        // A text that scrolls begins at its beginning.
        auto* area = qobject_cast<QScrollArea*>(label->parentWidget()->parentWidget());
        if (area) area->ensureVisible(0, 0, 0, 0);
    }
    control->setVisible(record.Visible);
}

/// The caret stays where the user is typing. What appears in a field that the user has emptied is
/// selected, so that the next key replaces it.
void ShowText(QLineEdit* line, const QString& text) {
    if (line->text() == text) return;
    const bool isEmptied = line->text().isEmpty() && line->hasFocus();
    const bool isAtEnd = line->cursorPosition() == line->text().size();
    const int caret = line->cursorPosition();
    line->setText(text);
    line->setCursorPosition(isAtEnd ? static_cast<int>(text.size()) : caret);
    if (isEmptied) line->selectAll();
}

void Show(const TextBox& record, QWidget* control) {
    const auto text = ToScreen(record.Text);
    if (auto* line = qobject_cast<QLineEdit*>(control)) ShowText(line, text);
    control->setVisible(record.Visible);
    control->setEnabled(record.Enabled);
}

void Show(const Button& record, QWidget* control) {
    auto* button = qobject_cast<QAbstractButton*>(control);
    if (button && !record.Caption.empty()) button->setText(ToScreen(record.Caption));
    control->setVisible(record.Visible);
    control->setEnabled(record.Enabled);
}

void Show(const CheckBox& record, QWidget* control) {
    if (auto* box = qobject_cast<QCheckBox*>(control)) box->setChecked(record.Value != 0);
    control->setVisible(record.Visible);
    control->setEnabled(record.Enabled);
}

/// A caption has no shortcut: each "&" in it is shown.
void ShowCaption(const QString& caption, QRadioButton* option) {
    auto text = caption;
    if (HasGreatestWidth(option)) {
        constexpr int indicator = 28;
        text = option->fontMetrics().elidedText(caption, Qt::ElideMiddle,
                                                option->maximumWidth() - indicator);
        TellWhole(option, text, caption);
    }
    option->setText(text.replace("&", "&&"));
}

void Show(const OptionButton& record, QWidget* control) {
    if (auto* option = qobject_cast<QRadioButton*>(control)) {
        if (record.Value) option->setChecked(true);
        if (!record.Caption.empty()) ShowCaption(ToScreen(record.Caption), option);
    }
    control->setEnabled(record.Enabled);
}

/// A drop-down list shows the record's text in its first row and the choices below it.
void ShowList(const ComboBox& record, QListWidget* list) {
    list->clear();
    list->addItem(ToScreen(record.Text));
    list->item(0)->setFlags(Qt::ItemIsEnabled);
    for (const auto& item : record.List) list->addItem(ToScreen(item));
}

/// Puts a chosen entry into an editable box's text, unless the user is typing it there.
void ShowChoice(QComboBox* combo, const QString& text) {
    const int index = combo->findText(text);
    auto* line = combo->lineEdit();
    const int caret = line ? line->cursorPosition() : 0;
    const bool isTyped = line && line->text() == text;
    if (combo->currentIndex() != index) combo->setCurrentIndex(index);
    if (line && line->text() != text) line->setText(text);
    if (isTyped) line->setCursorPosition(caret);
}

/// Colours stand before their names, in a list whose layout asks for that.
void ShowSwatches(QComboBox* combo) {
    if (!combo->property("swatches").toBool()) return;
    const int side = qRound(16 * combo->devicePixelRatioF());
    for (int i = 0; i < combo->count(); ++i) {
        QPixmap swatch(side, side);
        const auto name = combo->itemText(i).toLower();
        swatch.fill(name == "green" ? QColor(Qt::green) : QColor(name));
        QPainter(&swatch).drawRect(swatch.rect().adjusted(0, 0, -1, -1));
        combo->setItemIcon(i, QIcon(swatch));
    }
}

void Show(const ComboBox& record, QWidget* control) {
    if (auto* list = qobject_cast<QListWidget*>(control)) ShowList(record, list);
    auto* combo = qobject_cast<QComboBox*>(control);
    if (!combo) return;
    QStringList items;
    for (const auto& item : record.List) items.append(ToScreen(item));
    QStringList shown;
    for (int i = 0; i < combo->count(); ++i) shown.append(combo->itemText(i));
    if (shown != items) {
        combo->clear();
        combo->addItems(items);
        ShowSwatches(combo);
    }
    ShowChoice(combo, ToScreen(record.Text));
    combo->setEnabled(record.Enabled);
    // A list without entries is hidden, as that of the drives is on this platform.
    combo->setVisible(combo->isEditable() || !record.List.empty());
}

void Show(const ListBox& record, QWidget* control) {
    auto* view = qobject_cast<QListView*>(control);
    if (!view) return;
    auto* model = static_cast<ListBoxModel*>(view->model());
    model->Show(record.List);
    const auto selected = model->index(record.ListIndex);
    const auto* shown = view->selectionModel();
    if (!selected.isValid()) {
        view->clearSelection();
    } else if (!shown->isSelected(selected)) {
        view->setCurrentIndex(selected);
    }
    control->setVisible(record.Visible);
}

void Show(const PictureBox& record, QWidget* control) {
    if (auto* label = qobject_cast<QLabel*>(control)) {
        const auto ratio = control->devicePixelRatioF();
        label->setPixmap(record.Picture > 0 ? CellOnPaper(record.Picture, PreviewPixels, ratio)
                                            : QPixmap());
    }
}

void Show(const ScrollBar& record, QWidget* control) {
    if (auto* slider = qobject_cast<QAbstractSlider*>(control)) {
        slider->setRange(record.Min, record.Max);
        slider->setValue(record.Value);
    }
    control->setEnabled(record.Enabled);
}

// Take: what the user did into the record.

void Take(Label&, QWidget*) {}
void Take(Button&, QWidget*) {}
void Take(PictureBox&, QWidget*) {}

void Take(TextBox& record, QWidget* control) {
    if (auto* line = qobject_cast<QLineEdit*>(control)) record.Text = OneLine(ToCore(line->text()));
}

void Take(CheckBox& record, QWidget* control) {
    if (auto* box = qobject_cast<QCheckBox*>(control)) record.Value = box->isChecked() ? 1 : 0;
}

void Take(OptionButton& record, QWidget* control) {
    if (auto* option = qobject_cast<QRadioButton*>(control)) record.Value = option->isChecked();
}

void Take(ComboBox& record, QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control))
        record.Text = OneLine(ToCore(combo->currentText()));
    const auto chosen = control->property("chosen");
    if (chosen.isValid()) record.Text = ToCore(chosen.toString());
    control->setProperty("chosen", {});
}

void Take(ListBox& record, QWidget* control) {
    // A list that gets the focus has a current entry, which is not selected yet.
    if (auto* view = qobject_cast<QListView*>(control)) {
        const auto selected = view->selectionModel()->selectedRows();
        record.ListIndex = selected.isEmpty() ? -1 : selected.constFirst().row();
    }
}

void Take(ScrollBar& record, QWidget* control) {
    if (auto* slider = qobject_cast<QAbstractSlider*>(control)) {
        record.Value = static_cast<std::int16_t>(slider->value());
    }
}

QWidget* ControlOf(const FormView& view, const ControlRow& row) {
    return view.findChild<QWidget*>(QString::fromStdString(row.Name));
}

/// Gives a member of an array, "x_1" in the layout, its name "x(1)".
void NameControl(FormView& view, const ControlRow& row) {
    const auto name = ToScreen(row.Name);
    if (!name.endsWith(')')) return;
    auto inLayout = name.chopped(1);
    inLayout.replace('(', '_');
    if (auto* control = view.findChild<QWidget*>(inLayout)) control->setObjectName(name);
}

/// True when nothing is selected in a list that needs it.
bool LacksSelection(const Form& form) {
    for (const auto& row : form.Controls) {
        const auto* list = std::get_if<ListBox*>(&row.Record);
        if (list && (*list)->Needed && (*list)->ListIndex < 0) return true;
    }
    return false;
}

/// Says in an empty list or label what will stand there, where its layout has words for it.
void ShowEmptyText(QWidget* control) {
    const auto words = control->property("emptyText").toString();
    if (words.isEmpty()) return;
    auto* view = qobject_cast<QListView*>(control);
    auto* label = qobject_cast<QLabel*>(control);
    QWidget* host = view ? view->viewport() : control;
    auto* text = host->findChild<QLabel*>("emptyText");
    if (!text) {
        text = new QLabel(words, host);
        text->setObjectName("emptyText");
        text->setAlignment(Qt::AlignCenter);
        text->setAttribute(Qt::WA_TransparentForMouseEvents);
        auto* rows = new QVBoxLayout(host);
        rows->addWidget(text);
    }
    const bool isEmpty = view ? view->model()->rowCount() == 0
                              : label && label->text().isEmpty() && label->pixmap().isNull();
    auto colors = host->palette();
    auto faint = colors.color(QPalette::Text);
    faint.setAlphaF(0.6F);
    for (const auto role : {QPalette::Text, QPalette::WindowText}) colors.setColor(role, faint);
    text->setPalette(colors);
    text->setVisible(isEmpty);
}

void TakeAll(const FormView& view, const Form& form) {
    for (const auto& row : form.Controls) {
        if (auto* control = ControlOf(view, row)) {
            std::visit([&](auto* record) { Take(*record, control); }, row.Record);
        }
    }
}

}  // namespace

FormView::FormView(const Form& form, QWidget* parent) : QDialog(parent), form_(form) {
    setObjectName(ToScreen(form.Name));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setWindowFlag(Qt::WindowCloseButtonHint, form.Closed != nullptr);
    if (const auto* list = FindOptionList(form.Name)) {
        SetUpOptionList(*list, this);
    } else {
        SetUpLayout(objectName(), this);
    }
    if (layout() && layout()->sizeConstraint() == QLayout::SetDefaultConstraint) {
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }
    for (const auto& row : form.Controls) NameControl(*this, row);
    for (const auto& row : form.Controls) {
        if (auto* control = ControlOf(*this, row)) Connect(row, control);
    }
    for (const char* name : {"cmdOK", "cmd"}) {
        if (auto* ok = findChild<QPushButton*>(name)) ok->setDefault(true);
    }
    for (const char* name : {"lblName", "lblHelp"}) {
        if (auto* label = findChild<QLabel*>(name)) {
            label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }
    }
    if (form.Timer.Interval > 0) RunTimer();
    openForms.append(this);
}

FormView::~FormView() { openForms.removeOne(this); }

/// The pending event of a number field runs before that of the control that the user goes to next.
void FormView::Run(const ControlRow& row) {
    Dispatch(
        [&] {
            TakeAll(*this, form_);
            const auto* waiting = std::exchange(waiting_, nullptr);
            if (waiting && waiting != &row) waiting->Event();
            if (row.Event) row.Event();
        },
        this);
}

void FormView::ConnectText(const ControlRow& row, QLineEdit* line) {
    connect(line, &QLineEdit::textEdited, this, [this, &row](const QString& text) {
        if (row.Number && BeginsNumber(ToCore(text))) {
            TakeAll(*this, form_);
            waiting_ = &row;
        } else {
            Run(row);
        }
    });
    connect(line, &QLineEdit::editingFinished, this, [this] {
        if (waiting_) Run(*waiting_);
    });
}

void FormView::Connect(const ControlRow& row, QWidget* control) {
    const auto run = [this, &row] { Run(row); };
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        ConnectText(row, line);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->isEditable()) combo->setCompleter(nullptr);
        combo->setInsertPolicy(QComboBox::NoInsert);
        connect(combo, &QComboBox::currentTextChanged, this, run);
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        connect(list, &QListWidget::itemActivated, this, [list, run](QListWidgetItem* item) {
            list->setProperty("chosen", item->text());
            run();
        });
    } else if (auto* view = qobject_cast<QListView*>(control)) {
        ConnectList(view, run);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        connect(button, &QAbstractButton::clicked, this, run);
        if (qobject_cast<QRadioButton*>(button)) button->installEventFilter(this);
    } else if (auto* slider = qobject_cast<QAbstractSlider*>(control)) {
        slider->setFocusPolicy(Qt::TabFocus);
        connect(slider, &QAbstractSlider::valueChanged, this, run);
    }
}

/// A selection by hand runs the handler once the list is done with the click or key, since the
/// handler may ask something. A double click presses OK.
void FormView::ConnectList(QListView* view, const std::function<void()>& run) {
    view->setModel(new ListBoxModel(view));
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [=, this] {
        const bool isByHand = !view->signalsBlocked() && view->selectionModel()->hasSelection();
        if (isByHand) QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
    });
    connect(view, &QListView::doubleClicked, this, [this] {
        if (auto* ok = findChild<QPushButton*>("cmdOK")) ok->click();
    });
}

void FormView::RunTimer() {
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] { Dispatch(form_.Timer.Tick, this); });
    timer->start(form_.Timer.Interval);
}

void FormView::Refresh() {
    if (!form_.State->Visible) {
        if (isVisible()) done(Accepted);
        return;
    }
    setWindowTitle(ToScreen(form_.State->Caption));
    const auto pointer = PointerShape(form_.State->MousePointer);
    if (cursor().shape() != pointer) setCursor(pointer);
    for (const auto& row : form_.Controls) {
        auto* control = ControlOf(*this, row);
        if (!control) continue;
        const QSignalBlocker quiet(control);
        std::visit([&](auto* record) { Show(*record, control); }, row.Record);
        ShowEmptyText(control);
    }
    if (const auto* list = FindOptionList(form_.Name)) ShowOptionTips(*list, this);
    if (form_.Surface) update();
}

/// Escape presses Cancel where a form has it, or closes a form that can be closed, and does nothing
/// elsewhere: a box's dialog can't be left without an answer.
void FormView::reject() {
    if (auto* cancel = findChild<QPushButton*>("cmdCancel")) cancel->click();
    if (form_.Closed) Dispatch(form_.Closed, this);
}

/// Enter confirms a choice, so it does nothing while nothing is chosen; in a list of folders it
/// opens one.
void FormView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isTaken = qobject_cast<QListWidget*>(focusWidget()) || LacksSelection(form_);
    if (!isEnter || !isTaken) QDialog::keyPressEvent(event);
}

void FormView::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    if (!form_.Surface) return;
    QPainter painter(this);
    auto shapes = *form_.Surface;
    for (auto& shape : shapes) shape.Color = ColorNumber(palette().color(QPalette::WindowText));
    PaintShapes(painter, shapes);
}

/// The arrow keys choose among option buttons even when none is on yet.
bool FormView::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (!qobject_cast<QRadioButton*>(watched) || key < Qt::Key_Left || key > Qt::Key_Down) {
        return QDialog::eventFilter(watched, event);
    }
    watched->event(event);
    auto* next = qobject_cast<QRadioButton*>(focusWidget());
    if (next && next != watched && !next->isChecked()) next->click();
    return true;
}

/// The first control gets the focus; its text is selected, so that typing replaces it.
void FormView::FocusFirst() {
    const auto takes = [this](const QWidget* control) {
        return control->isVisibleTo(this) && control->isEnabled() &&
               (control->focusPolicy() & Qt::TabFocus) &&
               !qobject_cast<const QAbstractSlider*>(control);
    };
    auto* first = nextInFocusChain();
    while (first != this && !takes(first)) first = first->nextInFocusChain();
    first->setFocus(Qt::TabFocusReason);
    auto* combo = qobject_cast<QComboBox*>(first);
    auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(first);
    if (line) line->selectAll();
}

void FormView::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!focusWidget()) FocusFirst();
    if (form_.Activated) QMetaObject::invokeMethod(this, &FormView::Activate, Qt::QueuedConnection);
}

/// Activated runs as a handler and drops other events, so the form must be on the screen before it.
void FormView::Activate() {
    const QDeadlineTimer patience(500);
    while (!windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(2);
    }
    Dispatch(form_.Activated, this);
}

void RefreshForms() {
    const auto forms = openForms;
    for (auto* form : forms) form->Refresh();
}

}  // namespace quorvane
