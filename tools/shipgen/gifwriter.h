#pragma once

#include <QImage>
#include <QString>

// Writes the right half of `image` as a GIF of the full size whose left
// half is transparent. Returns false if the file cannot be written.
bool WriteRightHalfGif(const QImage& image, const QString& path);
