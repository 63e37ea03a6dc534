// What a window does with the screen and with its user while it works at something long.
#pragma once

#include <QElapsedTimer>

namespace gastrelle {

/// Shows what has changed on the screen now and then, and lets nothing else in.
class Repeint {
 public:
  Repeint() { depuis_.start(); }

  void operator()();
  static void Maintenant();

 private:
  QElapsedTimer depuis_;
};

/// Keys and clicks of the meantime meet the windows as they are now: none of them falls to what is
/// shown next.
void EcouleSaisies();

}  // namespace gastrelle
