// Paints the plug-in's and the host's images so that every picture is our
// own and can be redrawn: norvane-imagegen resources host/images.
#include <QColor>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>

#include <array>
#include <cstdio>

namespace {

QImage canvas(int w, int h)
{
    QImage image(w, h, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

QImage lamp(const QColor& color)
{
    QImage image = canvas(16, 16);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(QPointF(6, 6), 8);
    g.setColorAt(0, color.lighter(170));
    g.setColorAt(1, color.darker(120));
    p.setBrush(g);
    p.setPen(QPen(color.darker(180), 1));
    p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    return image;
}

QImage warning()
{
    QImage image = canvas(16, 16);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QPolygonF triangle({QPointF(8, 1), QPointF(15, 14.5), QPointF(1, 14.5)});
    p.setBrush(QColor(250, 200, 30));
    p.setPen(QPen(QColor(120, 90, 0), 1));
    p.drawPolygon(triangle);
    p.setPen(QPen(Qt::black, 2));
    p.drawLine(QPointF(8, 5.5), QPointF(8, 10));
    p.drawPoint(QPointF(8, 12.5));
    return image;
}

QImage lock()
{
    QImage image = canvas(16, 16);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(90, 90, 90), 2));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(4, 1.5, 8, 9), 0, 180 * 16);
    p.drawLine(QPointF(4, 6), QPointF(4, 8));
    p.drawLine(QPointF(12, 6), QPointF(12, 8));
    p.setPen(QPen(QColor(120, 80, 0), 1));
    p.setBrush(QColor(220, 170, 40));
    p.drawRoundedRect(QRectF(2.5, 7.5, 11, 7.5), 1.5, 1.5);
    p.setBrush(Qt::black);
    p.drawEllipse(QRectF(7, 9.5, 2, 2));
    return image;
}

// The sensor as a small box with an antenna: the symbol of the module.
void draw_sensor(QPainter& p, const QRectF& r, const QColor& body)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(body.darker(200), r.width() / 24));
    p.setBrush(body);
    QRectF box(r.left() + r.width() * 0.1, r.top() + r.height() * 0.35, r.width() * 0.8,
               r.height() * 0.55);
    p.drawRoundedRect(box, r.width() * 0.08, r.width() * 0.08);
    p.drawLine(QPointF(box.right() - r.width() * 0.15, box.top()),
               QPointF(box.right() - r.width() * 0.05, r.top() + r.height() * 0.05));
    p.setBrush(body.lighter(160));
    p.drawEllipse(QPointF(box.center().x() - r.width() * 0.1, box.center().y()), r.width() * 0.12,
                  r.width() * 0.12);
}

QImage sensor_icon(const QColor& color, int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    draw_sensor(p, QRectF(0, 0, size, size), color);
    return image;
}

// "118" shows a sensor at rest beside a thermometer: warming up.
QImage warming()
{
    QImage image = canvas(16, 16);
    QPainter p(&image);
    draw_sensor(p, QRectF(0, 3, 11, 11), QColor(70, 110, 190));
    p.setPen(QPen(QColor(160, 0, 0), 1));
    p.setBrush(QColor(220, 40, 40));
    p.drawRoundedRect(QRectF(12, 1, 3, 10), 1.5, 1.5);
    p.drawEllipse(QRectF(11, 10, 5, 5));
    return image;
}

struct Vec3
{
    double x, y, z;
};

Vec3 rotate(const Vec3& v, double ax, double ay, double az)
{
    Vec3 a{v.x, v.y * qCos(ax) - v.z * qSin(ax), v.y * qSin(ax) + v.z * qCos(ax)};
    Vec3 b{a.x * qCos(ay) + a.z * qSin(ay), a.y, -a.x * qSin(ay) + a.z * qCos(ay)};
    return {b.x * qCos(az) - b.y * qSin(az), b.x * qSin(az) + b.y * qCos(az), b.z};
}

// One frame of a rigid body with its sensor turned in turn about x, y and z:
// the motion a hand-eye calibration needs.
QImage handeye_frame(int index, int count)
{
    const int size = 160;
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(QColor(245, 245, 245));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);

    const double t = double(index) / count;
    const double swing = qSin(t * 6 * M_PI) * 0.7;
    const double ax = t < 1.0 / 3 ? swing : 0.3;
    const double ay = t >= 1.0 / 3 && t < 2.0 / 3 ? swing : 0.4;
    const double az = t >= 2.0 / 3 ? swing : 0.0;

    auto project = [&](const Vec3& v) {
        Vec3 r = rotate(v, ax + 0.35, ay - 0.5, az);
        const double s = 170 / (r.z + 6);
        return QPointF(size / 2 + r.x * s, size / 2 - r.y * s);
    };

    // Body: a flat plate with four marker spheres, sensor box on top.
    const std::array<Vec3, 4> plate{{{-1.6, -0.1, -1}, {1.6, -0.1, -1}, {1.6, -0.1, 1}, {-1.6, -0.1, 1}}};
    QPolygonF outline;
    for (const Vec3& v : plate)
        outline << project(v);
    p.setPen(QPen(QColor(60, 60, 60), 1.5));
    p.setBrush(QColor(150, 160, 175));
    p.drawPolygon(outline);

    const std::array<Vec3, 4> markers{{{-1.9, 0.4, -1.3}, {1.9, 0.4, -0.9}, {1.2, 0.4, 1.4}, {-1.4, 0.4, 1.1}}};
    p.setBrush(QColor(230, 230, 230));
    for (const Vec3& m : markers) {
        p.drawLine(project({m.x * 0.8, -0.1, m.z * 0.8}), project(m));
        p.drawEllipse(project(m), 6, 6);
    }

    const std::array<Vec3, 4> box{{{-0.5, 0.0, -0.4}, {0.5, 0.0, -0.4}, {0.5, 0.0, 0.4}, {-0.5, 0.0, 0.4}}};
    QPolygonF bottom, top;
    for (const Vec3& v : box) {
        bottom << project(v);
        top << project({v.x, v.y + 0.5, v.z});
    }
    p.setBrush(QColor(60, 100, 190));
    p.drawPolygon(bottom);
    for (int i = 0; i < 4; ++i)
        p.drawPolygon(QPolygonF({bottom[i], bottom[(i + 1) % 4], top[(i + 1) % 4], top[i]}));
    p.setBrush(QColor(90, 140, 230));
    p.drawPolygon(top);

    // Axis arrow showing the current turn.
    p.setPen(QPen(QColor(200, 40, 40), 2.5));
    const Vec3 axis = t < 1.0 / 3 ? Vec3{1, 0, 0} : t < 2.0 / 3 ? Vec3{0, 1, 0} : Vec3{0, 0, 1};
    p.drawLine(project({-axis.x * 2.5, -axis.y * 2.5, -axis.z * 2.5}),
               project({axis.x * 2.5, axis.y * 2.5, axis.z * 2.5}));
    return image;
}

// The host's mark: three tracking rays meeting in a marker, on the blue of
// the window icon.
QImage host_logo(int size)
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const double s = size / 16.0;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 70, 150));
    p.drawRoundedRect(QRectF(0.5 * s, 0.5 * s, 15 * s, 15 * s), 3 * s, 3 * s);
    p.setPen(QPen(QColor(235, 240, 250), 1.4 * s, Qt::SolidLine, Qt::RoundCap));
    const QPointF marker(10.5 * s, 5.5 * s);
    for (const QPointF& from : {QPointF(3 * s, 13 * s), QPointF(3 * s, 4 * s), QPointF(12 * s, 13 * s)})
        p.drawLine(from, marker);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 200, 40));
    p.drawEllipse(marker, 2.2 * s, 2.2 * s);
    return image;
}

bool save(const QImage& image, const QDir& dir, const QString& name)
{
    if (image.save(dir.filePath(name)))
        return true;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(dir.filePath(name)));
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: norvane-imagegen <plug-in image folder> [<host image folder>]\n");
        return 2;
    }
    QDir dir(QString::fromLocal8Bit(argv[1]));
    dir.mkpath(QStringLiteral("."));
    bool ok = save(lamp(QColor(40, 180, 60)), dir, QStringLiteral("green.png"))
              && save(lamp(QColor(240, 200, 30)), dir, QStringLiteral("yellow.png"))
              && save(lamp(QColor(210, 40, 40)), dir, QStringLiteral("red.png"))
              && save(lamp(QColor(150, 150, 150)), dir, QStringLiteral("gray.png"))
              && save(warning(), dir, QStringLiteral("warning.png"))
              && save(lock(), dir, QStringLiteral("lock.png"))
              && save(warming(), dir, QStringLiteral("118.png"))
              && save(sensor_icon(QColor(60, 110, 200), 32), dir, QStringLiteral("inertial_en.png"))
              && save(sensor_icon(QColor(150, 150, 150), 32), dir, QStringLiteral("inertial_dis.png"))
              && save(sensor_icon(QColor(60, 110, 200), 128), dir, QStringLiteral("sensor.png"));
    const int frames = 26;
    for (int i = 1; ok && i <= frames; ++i)
        ok = save(handeye_frame(i - 1, frames), dir,
                  QStringLiteral("handeye_frame_%1.png").arg(i, 4, 10, QLatin1Char('0')));
    if (ok && argc == 3) {
        // The images the host offers its modules under fixed resource paths.
        QDir host(QString::fromLocal8Bit(argv[2]));
        host.mkpath(QStringLiteral("."));
        ok = save(lamp(QColor(40, 180, 60)), host, QStringLiteral("green.png"))
             && save(lamp(QColor(240, 200, 30)), host, QStringLiteral("yellow.png"))
             && save(lamp(QColor(210, 40, 40)), host, QStringLiteral("red.png"))
             && save(sensor_icon(QColor(60, 110, 200), 16), host, QStringLiteral("inertial_en.png"))
             && save(sensor_icon(QColor(150, 150, 150), 16), host, QStringLiteral("inertial_dis.png"))
             && save(host_logo(16), host, QStringLiteral("norvan_16x16.png"))
             && save(host_logo(64), host, QStringLiteral("norvane_64x64.png"));
    }
    return ok ? 0 : 1;
}
