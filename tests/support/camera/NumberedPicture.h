#pragma once

#include <QImage>

// Pictures that carry a number which outlives JPEG and scaling: sixteen black or white columns, the highest
// bit at the left.
namespace numberedpicture {

// `number`: 0 to 65535.
QImage make(int number, QSize size);
// The number of a picture, whatever size it has now; -1 when it is not one of these.
int read(const QImage &picture);

} // namespace numberedpicture
