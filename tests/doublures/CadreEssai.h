// A frame that keeps what its child window tells it.
#pragma once

#include <optional>
#include <vector>

#include "controles/Cadre.h"
#include "data/Module1.h"

namespace gastrelle::essai {

class CadreEssai final : public Cadre {
 public:
  explicit CadreEssai(Module1& module) : module_(module) {}

  void PoseContexte(std::int16_t code) override {
    module_.contexteActif = code;
    contextes.push_back(code);
  }
  void QuitteContexte(EntreeVue vue) override {
    module_.contexteActif = 0;
    quittes.push_back(vue);
  }
  void Coche(EntreeVue vue) override { cochee = vue; }
  void PermetImage(bool permise) override { imagePermise = permise; }
  void MontreImage() override { ++imagesMontrees; }
  void Decharge(EntreeVue derniere) override { dechargee = derniere; }
  void AnnonceRecettesChangees() override { recettesChangees = true; }

  std::vector<std::int16_t> contextes;
  std::vector<EntreeVue> quittes;
  std::optional<EntreeVue> cochee;
  std::optional<bool> imagePermise;
  int imagesMontrees = 0;
  std::optional<EntreeVue> dechargee;  ///< the last one of those that were to go
  bool recettesChangees = false;

 private:
  Module1& module_;
};

}  // namespace gastrelle::essai
