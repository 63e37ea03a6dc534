// What the desktop and the system ask of the program beside its user: to write what it holds, to
// stop.
#pragma once

#include <functional>

#include <QObject>

#include "shell/Application.h"

namespace gastrelle {

class EcouteArret final : public QObject {
 public:
  /// `descripteur`: what can be read from once the system asks for a stop; below 0: nothing.
  EcouteArret(Application& application, int descripteur);
  ~EcouteArret() override;

  /// The session is about to end, and may still go on if its user thinks better of it: the place to
  /// write, without closing anything.
  std::function<void()> surEnregistrement;
  /// The program is to end now, with nobody there to answer it.
  std::function<void()> surArret;

 private:
  Application& application_;
};

}  // namespace gastrelle
