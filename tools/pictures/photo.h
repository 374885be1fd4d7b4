// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QSize>

namespace quorvane {

/// What a window has around it on the screen, in logical pixels.
constexpr QSize TitleAndEdges(2, 25);

/// The windows of these names as they stand on the screen, each with its title; the first one is as
/// large as the picture.
QImage PhotoOf(const QStringList& windows);

/// The picture of the engine's plot, which "figure" shows.
extern QImage figure;

struct NamedPhoto {
    QString Name;
    QImage Photo;
};
/// All of them side by side, with their names.
QImage ContactSheet(const QList<NamedPhoto>& photos);

/// Ends the program when the file can't be written.
void Save(const QImage& image, const QString& file);

}  // namespace quorvane
