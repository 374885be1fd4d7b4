// SPDX-License-Identifier: MIT
#pragma once

class QPushButton;
class QWidget;

namespace quorvane {

/// A button with a menu that saves, copies or prints the active worksheet's diagram, and says how
/// its pictures look, which is remembered.
QPushButton* MakePictureButton(QWidget* parent);

/// Shows the diagram of a document as it will be printed, on white, and prints it from there.
void PrintDiagram(int document);

}  // namespace quorvane
