#pragma once

class QWidget;

namespace tarnic {

// For the start-up benchmark only: when TARNIC_BENCH_EXIT_WHEN_SHOWN is set, the first time the
// ability table has painted its rows the application prints "shown <CLOCK_MONOTONIC ns>" on
// standard output and quits. Does nothing otherwise.
void exitWhenShownForBenchmark(QWidget& window);

} // namespace tarnic
