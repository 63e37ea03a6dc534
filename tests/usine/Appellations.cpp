#include "usine/Appellations.h"

#include <algorithm>

#include "data/Texte1252.h"
#include "usine/Place.h"

namespace gastrelle::usine {
namespace {

/// A name as names are compared: capitals, a blank for each hyphen and apostrophe.
std::string Reduit(std::string_view utf8) {
  std::string nom = Majuscules(DepuisUtf8(utf8));
  std::replace_if(
      nom.begin(), nom.end(), [](char c) { return c == '-' || c == '\'' || c == '\n'; }, ' ');
  return nom;
}

}  // namespace

Appellations::Appellations(const std::vector<std::string>& connues,
                           const std::vector<Notice>& vins) {
  for (const Notice& vin : vins) {
    fiches_.emplace(Reduit(vin.nom), &vin);
  }
  for (const std::string& ligne : connues) {
    const std::size_t egal = ligne.find(" = ");
    const std::string fiche = Reduit(egal == std::string::npos ? ligne : ligne.substr(egal + 3));
    const auto place = fiches_.find(fiche);
    const std::string nom = Reduit(ligne.substr(0, egal));
    fiches_.emplace(nom, place == fiches_.end() ? nullptr : place->second);
    connues_.insert(nom);
  }
}

std::vector<Appellations::Citation> Appellations::Dans(std::string_view texte) const {
  const std::string reduit = Reduit(texte);
  std::vector<Citation> citations;
  for (std::size_t i = 0; i < reduit.size();) {
    const bool debut = EstLettre(reduit[i]) && (i == 0 || !EstLettre(reduit[i - 1]));
    const std::string tete = reduit.substr(i, 2);  // the names that begin with it lie together
    std::size_t longueur = 0;
    for (auto place = debut ? fiches_.lower_bound(tete) : fiches_.end();
         place != fiches_.end() && place->first.starts_with(tete); ++place) {
      const std::string& nom = place->first;
      const bool entier = i + nom.size() >= reduit.size() || !EstLettre(reduit[i + nom.size()]);
      if (nom.size() > longueur && entier && reduit.compare(i, nom.size(), nom) == 0) {
        longueur = nom.size();
      }
    }
    if (longueur > 0) {
      const std::string nom = reduit.substr(i, longueur);
      citations.push_back({VersUtf8(nom), fiches_.at(nom), connues_.contains(nom)});
    }
    i += std::max<std::size_t>(longueur, 1);
  }
  return citations;
}

}  // namespace gastrelle::usine
