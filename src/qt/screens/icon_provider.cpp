// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/icon_provider.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

namespace lumora::qt {

namespace {
constexpr QSize kDefaultSize{24, 24};
}

IconProvider::IconProvider() : QQuickImageProvider{QQuickImageProvider::Image} {}

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const auto name = id.section(u'/', 0, 0);
    const auto color = id.section(u'/', 1, 1).toLatin1();
    QSize pixels = kDefaultSize;
    if (requestedSize.width() > 0 && requestedSize.height() > 0) {
        pixels = requestedSize;
    }
    QImage image{pixels, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    if (size != nullptr) {
        *size = pixels;
    }

    QFile file{QStringLiteral(":/Lumora/icons/%1.svg").arg(name)};
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("no icon is called %s", qUtf8Printable(name));
        return image;
    }
    const double radius = id.section(u'/', 2, 2).toDouble();
    QSvgRenderer renderer{file.readAll().replace("currentColor", "#" + color)};
    QPainter painter{&image};
    if (radius > 0) {
        QPainterPath shape;
        shape.addRoundedRect(image.rect(), radius, radius);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(shape);
    }
    renderer.render(&painter);
    return image;
}

} // namespace lumora::qt
