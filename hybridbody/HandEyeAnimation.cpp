#include "HandEyeAnimation.h"

#include <QPixmap>

namespace {

constexpr int Frames = 26;
constexpr int FrameIntervalMs = 200;

} // namespace

HandEyeAnimation::HandEyeAnimation(QWidget* parent)
    : QLabel(parent), image_timer(this), frame_index(1)
{
    image_timer.setInterval(FrameIntervalMs);
    connect(&image_timer, &QTimer::timeout, this, &HandEyeAnimation::update_image);
}

void HandEyeAnimation::start()
{
    frame_index = 1;
    // Not the frame the last opening stopped at for the first 200 ms.
    update_image();
    image_timer.start();
}

void HandEyeAnimation::stop()
{
    image_timer.stop();
}

void HandEyeAnimation::update_image()
{
    if (frame_index < 1 || frame_index > Frames)
        frame_index = 1;
    // QPixmap keeps loaded files in its cache: each frame is decoded once.
    setPixmap(QPixmap(QStringLiteral(":/handeye_frame_%1.png").arg(frame_index, 4, 10, QLatin1Char('0'))));
    ++frame_index;
}
