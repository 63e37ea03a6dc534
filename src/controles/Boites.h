// Message boxes, beep and pointer of the real screen.
#pragma once

#include <Qt>

#include "data/Messages.h"

namespace gastrelle {

class MessagesEcran final : public Messages {
 public:
  void Informe(std::string_view texte, Icone icone,
               std::string_view titre = titreApplication) override;
  Reponse Demande(std::string_view texte, Choix choix = Choix::ouiNon) override;
  void Bip() override;
};

class PointeurEcran final : public Pointeur {
 public:
  void Sablier() override { Montre(Qt::WaitCursor); }
  void FlecheSablier() override { Montre(Qt::BusyCursor); }
  void Normal() override;

 private:
  /// Over all windows, in the place of the one that was shown before.
  void Montre(Qt::CursorShape forme);

  bool sablier_ = false;
};

}  // namespace gastrelle
