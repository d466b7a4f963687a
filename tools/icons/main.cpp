// Draws qtLoreka's own icons: loreka-icons <resources directory>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

QImage canvas(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

// A parchment page with a quill, on a dark cog-like disc.
QImage windowIcon()
{
    QImage image = canvas(96);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2e, 0x3a, 0x4a));
    for (int i = 0; i < 8; ++i) {
        p.save();
        p.translate(48, 48);
        p.rotate(i * 45.0);
        p.drawRoundedRect(QRectF(-8, -46, 16, 20), 3, 3);
        p.restore();
    }
    p.drawEllipse(QPointF(48, 48), 38, 38);
    QPainterPath page;
    page.moveTo(28, 22);
    page.lineTo(62, 22);
    page.quadTo(70, 48, 64, 74);
    page.lineTo(30, 74);
    page.quadTo(36, 48, 28, 22);
    p.setBrush(QColor(0xf2, 0xe3, 0xbc));
    p.setPen(QPen(QColor(0x8a, 0x6a, 0x3a), 2));
    p.drawPath(page);
    p.setPen(QPen(QColor(0x8a, 0x6a, 0x3a), 2, Qt::SolidLine, Qt::RoundCap));
    for (int y = 34; y <= 62; y += 7)
        p.drawLine(QPointF(37, y), QPointF(56, y));
    QPainterPath quill;
    quill.moveTo(46, 70);
    quill.cubicTo(56, 50, 70, 30, 84, 14);
    quill.cubicTo(80, 32, 70, 50, 46, 70);
    p.setPen(QPen(QColor(0x7a, 0x1e, 0x1e), 1.5));
    p.setBrush(QColor(0xc0, 0x39, 0x2b));
    p.drawPath(quill);
    return image;
}

QImage arrow(bool up)
{
    QImage image = canvas(24);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(0x1f, 0x4e, 0x79), 1.5));
    p.setBrush(QColor(0x4a, 0x90, 0xd9));
    QPolygonF shape;
    shape << QPointF(12, 3) << QPointF(21, 13) << QPointF(15.5, 13) << QPointF(15.5, 21)
          << QPointF(8.5, 21) << QPointF(8.5, 13) << QPointF(3, 13);
    if (!up) {
        for (QPointF& point : shape)
            point.setY(24 - point.y());
    }
    p.drawPolygon(shape);
    return image;
}

QImage cross()
{
    QImage image = canvas(24);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(0x8e, 0x1b, 0x1b), 5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(6, 6), QPointF(18, 18));
    p.drawLine(QPointF(18, 6), QPointF(6, 18));
    p.setPen(QPen(QColor(0xe0, 0x4b, 0x4b), 2.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(6, 6), QPointF(18, 18));
    p.drawLine(QPointF(18, 6), QPointF(6, 18));
    return image;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: loreka-icons <resources directory>\n");
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    dir.mkpath(QStringLiteral("window"));
    dir.mkpath(QStringLiteral("buttons/buttons"));
    bool ok = windowIcon().save(dir.filePath(QStringLiteral("window/zq-icon-96.png")));
    ok = arrow(true).save(dir.filePath(QStringLiteral("buttons/buttons/line_up.png"))) && ok;
    ok = arrow(false).save(dir.filePath(QStringLiteral("buttons/buttons/line_down.png"))) && ok;
    ok = cross().save(dir.filePath(QStringLiteral("buttons/buttons/line_delete.png"))) && ok;
    return ok ? 0 : 1;
}
