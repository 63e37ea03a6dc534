// Message boxes, beep and pointer of the real screen.
#pragma once

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
  void Sablier() override;
  void Normal() override;

 private:
  bool sablier_ = false;
};

}  // namespace gastrelle
