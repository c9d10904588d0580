#pragma once

// Where the ship pictures are read from. A copy in the build tree keeps them
// beside the program; an installed copy keeps them in its data folder, found
// from the program's own place, so that the whole installation can move to
// another prefix.

#include <QLoggingCategory>
#include <QPixmap>
#include <QString>

namespace vantorel {

// "vantorel.pictures": the folder the pictures come from and each picture
// read. It only says things at the info level, which is off unless enabled,
// for example with QT_LOGGING_RULES="vantorel.pictures.info=true".
Q_DECLARE_LOGGING_CATEGORY(PicturesLog)

// The folder that holds Alpha/ and Omega/: VANTOREL_IMAGES when it is set,
// else Images beside the program, else the installed data folder.
QString PictureFolder();

// Reads "Alpha/NAME" or "Omega/NAME" with its ending (".jpg", ".gif") from
// the folder. On a screen of more device pixels than pixels (`density` above
// 1) the drawing at twice the size, NAME@2x, is read where it is present;
// Qt gives it a device pixel ratio of 2, so it paints in the same place at
// full sharpness. A missing, broken or cut file, or anything but a plain file, gives a null
// pixmap; a broken drawing at twice the size falls back to the plain one.
QPixmap ReadPicture(const QString& folder, const QString& key, const QString& ending, double density);

} // namespace vantorel
