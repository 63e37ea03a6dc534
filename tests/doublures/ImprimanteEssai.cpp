#include "doublures/ImprimanteEssai.h"

#include <algorithm>
#include <cmath>

#include "plateforme/ErreurExecution.h"

namespace gastrelle::essai {
namespace {

class ImprimanteEssai final : public Imprimante {
 public:
  explicit ImprimanteEssai(ImprimantesEssai& registre)
      : registre_(registre), numero_(registre.travaux.size()) {
    registre_.travaux.emplace_back();
    travail().hauteurLigne = corps_ * registre_.interligne;
  }

  void PosePolice(const Police& police) override {
    const std::string nom(police.nom);
    registre_.Note("police " + nom + ' ' + std::to_string(static_cast<int>(police.corps)));
    corps_ = police.corps;
    travail().hauteurLigne = corps_ * registre_.interligne;
    auto& polices = travail().polices;
    if (const PoliceVue vue{nom, police.corps}; polices.empty() || !(polices.back() == vue)) {
      polices.push_back(vue);
    }
  }
  [[nodiscard]] double Largeur() override { return registre_.Mesure(registre_.largeur); }
  [[nodiscard]] double Hauteur() override { return registre_.Mesure(registre_.hauteur); }
  [[nodiscard]] double LargeurTexte(std::string_view texte) override {
    return registre_.Mesure(static_cast<double>(texte.size()) * corps_ *
                            ImprimantesEssai::twipsParPoint);
  }

 protected:
  [[nodiscard]] double HauteurLigne() override { return registre_.Mesure(travail().hauteurLigne); }
  void OuvrePage() override {
    registre_.Note("page");
    travail().pages.emplace_back();
  }
  void Trace(std::string_view texte, double x, double y) override {
    registre_.Note("trace " + std::string(texte));
    travail().pages.back().push_back({std::string(texte), x, y});
  }
  void Envoie() override {
    registre_.Note("envoie");
    travail().envoye = true;
  }

 private:
  TravailVu& travail() { return registre_.travaux[numero_]; }

  ImprimantesEssai& registre_;
  std::size_t numero_;
  double corps_ = 12;
};

}  // namespace

std::vector<std::string> TravailVu::Lignes(std::size_t page) const {
  std::vector<std::string> lignes;
  for (const MotTrace& mot : pages.at(page)) {
    const auto rang = static_cast<std::size_t>(std::lround(mot.y / hauteurLigne));
    lignes.resize(std::max(lignes.size(), rang + 1));
    lignes[rang] += mot.texte;
  }
  return lignes;
}

std::vector<std::string> TravailVu::ToutesLignes() const {
  std::vector<std::string> toutes;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    const std::vector<std::string> siennes = Lignes(page);
    toutes.insert(toutes.end(), siennes.begin(), siennes.end());
  }
  return toutes;
}

std::unique_ptr<Imprimante> ImprimantesEssai::ParDefaut() {
  ++demandes;
  return presente ? std::make_unique<ImprimanteEssai>(*this) : nullptr;
}

void ImprimantesEssai::Note(const std::string& ligne) {
  journal.push_back(ligne);
  if (pendant) {
    pendant(ligne);
  }
  if (defaut_ == journal.size()) {
    throw ErreurExecution(Panne::entreeSortie);
  }
}

double ImprimantesEssai::Mesure(double twips) {
  ++mesures;
  if (defautMesure_ == mesures) {
    throw ErreurExecution(Panne::entreeSortie);
  }
  return twips;
}

}  // namespace gastrelle::essai
