// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <string>

class QLineEdit;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace quorvane {

/// The help viewer: a window of its own over the manual, with its contents and a search.
class HelpWindow : public QMainWindow {
public:
    explicit HelpWindow(QWidget* parent);
    /// Shows the manual; false when the file can't be read.
    bool Open(const std::string& file);
    void ShowContents();
    void ShowPage(const QString& anchor);
    void ShowHowTo();
    void ShowSearch();

private:
    void FillContents();
    void FindNext();
    void ShowText(const QString& text);
    void Read(const QTreeWidgetItem* page);

    QTextBrowser* text_;
    QTreeWidget* contents_;
    QLineEdit* search_;
    QString manual_;
    bool showsManual_ = false;
};

/// Passes a command of the program to the viewer, which is made when it is first needed. A file
/// that can't be read is not reported.
void RunHelpCommand(const std::string& file, int command);

/// Opens the viewer at a page. Over a dialog it belongs to that, so that it can be read and
/// scrolled, and closes with it.
void ShowHelpPage(const std::string& file, const QString& anchor);

}  // namespace quorvane
