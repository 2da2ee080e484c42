#pragma once

class QWidget;

namespace tarnic::test {

// Turns the mouse wheel `notches` notches (positive away from the user, negative towards)
// with the pointer over the middle of `widget`. Each notch goes to the widget's window, which
// hands it to whatever widget is under the pointer, marked as coming from the window system:
// an event the widget ignores goes on to its parents. Returns how many wheel events reached
// `widget` itself.
int turnWheelOver(QWidget& widget, int notches);

} // namespace tarnic::test
