#ifndef HANDEYEANIMATION_H
#define HANDEYEANIMATION_H

#include <QLabel>
#include <QTimer>

// The picture that shows how to move a body during a hybrid body
// calibration: its 26 frames in a loop, one every 200 ms, while the dialog
// that holds it is open. The calibration dialog and its help both show it.
class HandEyeAnimation : public QLabel
{
    Q_OBJECT

public:
    explicit HandEyeAnimation(QWidget* parent = nullptr);

    // From the first frame on.
    void start();
    void stop();

public slots:
    void update_image();

private:
    QTimer image_timer;
    int frame_index;
};

#endif // HANDEYEANIMATION_H
