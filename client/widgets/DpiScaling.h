#pragma once

class QScreen;
class QWidget;

// Turns device-independent pixels, in which the product's layouts are given (1/96 inch), into the pixels in
// which widgets of a screen are laid out. GUI thread.
//
// Whether the toolkit scales the coordinates of widgets itself is read from the screen:
// - It does, as in the client, which sets AA_EnableHighDpiScaling: a widget's pixels are device-independent
// already,
//   the screen reports 96 dots per inch whatever its scale is, and a length stays as it is. The device's
//   pixels are devicePixelRatioF() times as many; only pictures care.
// - It does not (AA_DisableHighDpiScaling, or QT_AUTO_SCREEN_SCALE_FACTOR=0): a widget's pixels are the
// device's,
//   the screen reports its own dots per inch, and a length grows by that number / 96.
// A length is therefore never scaled twice.

// A length on a screen; without one on the primary screen. Rounded to the nearest pixel; what is not 0 stays
// at least 1 pixel long. Without any screen, or one that reports nonsense, the length as it is.
int scaled(int pixels, const QScreen *screen);
// A length on the screen that shows a widget; without one on the primary screen.
int scaled(int pixels, const QWidget *widget = nullptr);

// The same for a screen that reports a number of dots per inch to widgets.
int scaledForDpi(int pixels, double logicalDotsPerInch);
