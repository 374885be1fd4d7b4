// SPDX-License-Identifier: MIT
#include "qt/frame/picture_menu.h"

#include <QActionGroup>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSvgRenderer>

#include "diagram/picture.h"
#include "diagram/worksheet.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "workbench/bar.h"
#include "workbench/picture_file.h"

namespace quorvane {

namespace {

constexpr const char* StoreSection = "Pictures";
constexpr const char* OnPaper = "White ground";
constexpr const char* Numbers = "Box numbers";
constexpr const char* Scale = "Scale";
constexpr int Scales[] = {100, 200, 300, 400};  // in per cent

std::string Chosen(const char* key) { return desktop->ReadStore(StoreSection, key); }
void Choose(const char* key, const std::string& value) {
    desktop->WriteStore(StoreSection, key, value);
}

double ChosenScale() {
    const auto text = Chosen(Scale);
    return IsNumeric(text) ? TextToNumber(text) / 100 : 1;
}

std::string IconFile(int cell) {
    QFile file(QString(":/icons/%1.svg").arg(cell, 3, 10, QChar('0')));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
}

std::string PictureOf(int document, bool onPaper) {
    return DocumentPicture(document, IconFile, {onPaper, !Chosen(Numbers).empty()});
}
std::string ActivePicture() { return PictureOf(activeDocument, !Chosen(OnPaper).empty()); }

QByteArray Bytes(const std::string& text) { return QByteArray::fromStdString(text); }

/// The name of the worksheet's file without its ending; "Untitled1" before it has one.
std::string PlainName(const std::string& caption) {
    auto name = caption.substr(0, caption.rfind(".qvm"));
    std::erase(name, ':');
    return name;
}

void SavePictureAs() {
    const auto& caption = DocumentWindow(activeDocument).Caption;
    constexpr auto filter = "PDF (*.pdf)|*.pdf|PNG picture (*.png)|*.png|SVG picture (*.svg)|*.svg";
    std::string file;
    const auto ask = [&] { file = desktop->SaveFileDialog(filter, PlainName(caption) + ".pdf"); };
    if (!Attempt(ask)) return;
    const auto fault = SavePicture(file, ActivePicture(), ChosenScale());
    if (!fault.empty()) return Tell(file + ": " + fault, Icon::Exclamation);
    Say("saved " + std::string(FileNameOf(file)));
}

/// Both as SVG, for programs that draw, and in pixels.
void CopyPicture() {
    const auto svg = Bytes(ActivePicture());
    QSvgRenderer drawing(svg);
    QImage image(drawing.defaultSize() * ChosenScale(), QImage::Format_RGB32);
    if (image.isNull()) return Tell("The picture is too large to be copied", Icon::Exclamation);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    auto* copied = new QMimeData;
    copied->setData("image/svg+xml", svg);
    copied->setImageData(image);
    QGuiApplication::clipboard()->setMimeData(copied);
    Say("picture copied");
}

/// In the middle of the page, half as large again as on a screen of 96 pixels to the inch where
/// that fits.
void PaintPage(QPrinter& printer, QSvgRenderer& drawing) {
    constexpr double pixelsPerInch = 64;
    QPainter painter;
    if (!painter.begin(&printer)) return;
    const QRectF page({}, printer.pageRect(QPrinter::DevicePixel).size());
    auto size = QSizeF(drawing.defaultSize()) * (printer.resolution() / pixelsPerInch);
    if (size.width() > page.width() || size.height() > page.height()) {
        size.scale(page.size(), Qt::KeepAspectRatio);
    }
    QRectF place({}, size);
    place.moveCenter(page.center());
    drawing.render(&painter, place);
}

struct PictureEntry {
    const char* Name;
    const char* Text;
    void (*Choose)();
};
constexpr PictureEntry Entries[] = {
    {"savePicture", "&Save picture...", SavePictureAs},
    {"copyPicture", "&Copy picture", CopyPicture},
    {"printPicture", "&Print...\tCtrl+P", [] { PrintDiagram(activeDocument); }},
};

void AddSwitch(QMenu& menu, const char* name, const char* text, const char* key) {
    auto* entry = menu.addAction(text);
    entry->setObjectName(name);
    entry->setCheckable(true);
    entry->setChecked(!Chosen(key).empty());
    QObject::connect(entry, &QAction::toggled,
                     [key](bool on) { Dispatch([&] { Choose(key, on ? "1" : ""); }); });
}

void AddScales(QMenu& menu) {
    auto* group = new QActionGroup(&menu);
    auto* scales = menu.addMenu("Size of a P&NG or a copy");
    for (const int scale : Scales) {
        auto* entry = scales->addAction(QString("%1 %").arg(scale));
        entry->setObjectName(QString("pictureScale(%1)").arg(scale));
        entry->setCheckable(true);
        entry->setChecked(scale == qRound(100 * ChosenScale()));
        group->addAction(entry);
        QObject::connect(entry, &QAction::triggered,
                         [scale] { Dispatch([&] { Choose(Scale, NumberText(scale)); }); });
    }
}

}  // namespace

QPushButton* MakePictureButton(QWidget* parent) {
    auto* button = new QPushButton("Picture", parent);
    button->setObjectName("picture");
    button->setToolTip("Saves, copies or prints the diagram");
    auto* menu = new QMenu(button);
    for (const auto& row : Entries) {
        auto* entry = menu->addAction(row.Text);
        entry->setObjectName(row.Name);
        QObject::connect(entry, &QAction::triggered, [&row] { Dispatch(row.Choose); });
    }
    menu->addSeparator();
    AddSwitch(*menu, "pictureOnPaper", "On &white", OnPaper);
    AddSwitch(*menu, "pictureNumbers", "With box &numbers", Numbers);
    AddScales(*menu);
    button->setMenu(menu);
    return button;
}

void PrintDiagram(int document) {
    QSvgRenderer drawing(Bytes(PictureOf(document, true)));
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToScreen(FileNameOf(DocumentWindow(document).Caption)));
    const auto size = drawing.defaultSize();
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape
                                                            : QPageLayout::Portrait);
    QPrintPreviewDialog preview(&printer, frameView);
    preview.setObjectName("printPreview");
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                     [&](QPrinter* page) { PaintPage(*page, drawing); });
    constexpr double share = 0.9;
    preview.resize(frameView->size() * share);
    preview.exec();
}

}  // namespace quorvane
