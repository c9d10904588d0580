#include "mainwindow/view/picturefiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace vantorel {

Q_LOGGING_CATEGORY(PicturesLog, "vantorel.pictures", QtWarningMsg)

namespace {

bool HoldsPictures(const QString& folder) { return QFileInfo(folder + QStringLiteral("/Alpha")).isDir(); }

} // namespace

QString PictureFolder() {
    const QByteArray chosen = qgetenv("VANTOREL_IMAGES");
    if (!chosen.isEmpty()) {
        const QString folder = QString::fromLocal8Bit(chosen);
        qCInfo(PicturesLog).noquote() << "pictures from" << folder << "(VANTOREL_IMAGES)";
        return folder;
    }
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = QDir::cleanPath(program.filePath(QStringLiteral("Images")));
    const QString installed = QDir::cleanPath(program.filePath(QStringLiteral(VANTOREL_INSTALLED_IMAGES)));
    for (const QString& folder : {beside, installed}) {
        if (!HoldsPictures(folder)) continue;
        qCInfo(PicturesLog).noquote() << "pictures from" << folder;
        return folder;
    }
    qCInfo(PicturesLog).noquote() << "no pictures in" << beside << "nor in" << installed;
    return installed;
}

QPixmap ReadPicture(const QString& folder, const QString& key, const QString& ending, double density) {
    const QString plain = folder + QLatin1Char('/') + key + ending;
    const QString sharp = folder + QLatin1Char('/') + key + QStringLiteral("@2x") + ending;
    const QString file = density > 1.0 && QFileInfo::exists(sharp) ? sharp : plain;
    QPixmap pixmap;
    if (pixmap.load(file))
        qCInfo(PicturesLog).noquote() << "read" << file << pixmap.width() << "x" << pixmap.height();
    else
        qCInfo(PicturesLog).noquote() << "cannot read" << file;
    return pixmap;
}

} // namespace vantorel
