#include "vins/RapportCave.h"

#include <algorithm>
#include <charconv>
#include <numeric>

#include "data/LectureParBlocs.h"

namespace gastrelle {
namespace {

constexpr std::string_view titreDuTotal = "... Total .......... ";
constexpr std::string_view ligneVide = " ";

/// A label of the report with its figure.
std::string LigneChiffree(std::string_view titre, std::int32_t nombre) {
  std::array<char, 16> chiffres{};
  const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), nombre).ptr;
  std::string ligne(titre);
  ligne.append(chiffres.data(), fin);
  return ligne;
}

bool EstEnCave(std::int16_t nombre) {
  return nombre > 0;
}

/// How many lines a wine has: its heading, its colours, its total and the blank behind it.
int NombreDeLignes(const Bouteilles& bouteilles) {
  constexpr int autour = 3;
  return autour + static_cast<int>(std::count_if(bouteilles.begin(), bouteilles.end(), EstEnCave));
}

std::int32_t Somme(const Bouteilles& bouteilles) {
  return std::accumulate(
      bouteilles.begin(), bouteilles.end(), std::int32_t{0},
      [](std::int32_t somme, std::int16_t n) { return EstEnCave(n) ? somme + n : somme; });
}

std::string Titre(std::string_view nom, std::string_view region) {
  std::string titre = Majuscules(Rogne(nom));
  titre += " - Région d'origine : "_1252;
  titre += Rogne(region);
  return titre;
}

}  // namespace

RapportCave::RapportCave(Module1& module, const Liste& vins) {
  RecVin& vin = module.bufVin.courant();
  RecRegion& region = module.bufRegion.courant();
  LectureParBlocs<RecVin> lesVins(module.bufVin);
  LectureParBlocs<RecRegion> lesRegions(module.bufRegion);
  vins_.reserve(vins.size());
  for (const EntreeListe& enCave : vins) {
    lesVins.Lit(enCave.numero, vin);
    lesRegions.Lit(vin.idRegion, region);
    Range(vin, region);
  }
  Conclut();
}

void RapportCave::Range(const RecVin& vin, const RecRegion& region) {
  const Bouteilles bouteilles = BouteillesDe(vin);
  vins_.push_back({vin.nomVin, region.nomRegion, bouteilles, lignesDesVins_});
  lignesDesVins_ += NombreDeLignes(bouteilles);
  Compte(bouteilles);
}

void RapportCave::Compte(const Bouteilles& bouteilles) {
  const auto ajoute = [](std::int32_t& total, std::int16_t nombre) {
    total = Tenu<std::int32_t>(std::int64_t{total} + nombre);
  };
  for (std::size_t i = 0; i < bouteilles.size(); ++i) {
    if (EstEnCave(bouteilles[i])) {
      ajoute(parCouleur_[i], bouteilles[i]);
      ajoute(total_, bouteilles[i]);
    }
  }
}

void RapportCave::Conclut() {
  if (vins_.empty()) {
    conclusion_.emplace_back("Votre cave est vide !");
    return;
  }
  conclusion_.emplace_back("Nombre total de bouteilles dans ma cave");
  for (std::size_t i = 0; i < couleursVin.size(); ++i) {
    if (parCouleur_[i] > 0) {
      conclusion_.push_back(LigneChiffree(couleursVin[i].ligneDeToutes, parCouleur_[i]));
    }
  }
  conclusion_.push_back(LigneChiffree(titreDuTotal, total_));
}

int RapportCave::nombre() const {
  return lignesDesVins_ + static_cast<int>(conclusion_.size());
}

std::string RapportCave::Ligne(int indice) const {
  if (indice >= lignesDesVins_) {
    return conclusion_.at(static_cast<std::size_t>(indice - lignesDesVins_));
  }
  const auto suivant = std::upper_bound(
      vins_.begin(), vins_.end(), indice,
      [](int cherche, const VinRange& range) { return cherche < range.premiereLigne; });
  const VinRange& vin = *(suivant - 1);
  int reste = indice - vin.premiereLigne;
  if (reste == 0) {
    return Titre(vin.nom.brut(), vin.region.brut());
  }
  for (std::size_t i = 0; i < couleursVin.size(); ++i) {
    if (EstEnCave(vin.bouteilles[i]) && --reste == 0) {
      return LigneChiffree(couleursVin[i].ligne, vin.bouteilles[i]);
    }
  }
  return reste == 1 ? LigneChiffree(titreDuTotal, Somme(vin.bouteilles)) : std::string(ligneVide);
}

}  // namespace gastrelle
