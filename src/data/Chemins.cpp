#include "data/Chemins.h"

#include <algorithm>

#include "data/Texte1252.h"

namespace gastrelle {
namespace {

constexpr std::string_view dossierImages = "IMAGE";

std::string CasseComparee(Convention convention, std::string_view chemin) {
  return convention == Convention::windows ? Majuscules(chemin) : std::string(chemin);
}

}  // namespace

Chemins::Chemins(Convention convention, std::string_view dossier)
    : convention_(convention), cheminAppli_(CasseComparee(convention, dossier)) {
  if (cheminAppli_.empty() || cheminAppli_.back() != separateur()) {
    cheminAppli_ += separateur();
  }
}

std::string Chemins::De(std::string_view nom) const {
  return cheminAppli_ + std::string(nom);
}

bool Chemins::EstDisquette() const {
  return cheminAppli_.size() > 1 && cheminAppli_[1] == ':' && cheminAppli_[0] < 'C';
}

std::string Chemins::FormeCourte(std::string_view chemin) const {
  const std::size_t coupe = chemin.rfind(separateur());
  if (coupe == std::string_view::npos) {
    return std::string(chemin);
  }
  const std::string_view nom = chemin.substr(coupe + 1);
  if (CasseComparee(convention_, chemin.substr(0, coupe)) == De(dossierImages)) {
    return "/" + std::string(nom);
  }
  // Directly under the root a whole path would look like the short form.
  return (chemin.front() == '/' && coupe == 0 ? "/" : "") + std::string(chemin);
}

std::string Chemins::Developpe(std::string_view texte) const {
  const bool courte = texte.starts_with('/') && (convention_ == Convention::windows ||
                                                 std::count(texte.begin(), texte.end(), '/') == 1);
  if (!courte) {
    return std::string(texte);
  }
  return De(dossierImages) + separateur() + std::string(texte.substr(1));
}

std::string_view Chemins::Relatif(std::string_view chemin) const {
  const bool dedans =
      chemin.size() > cheminAppli_.size() &&
      CasseComparee(convention_, chemin.substr(0, cheminAppli_.size())) == cheminAppli_;
  if (!dedans) {
    return {};
  }
  // Separators that stand double count once, as they do for the system.
  const std::string_view separateurs = convention_ == Convention::windows ? "\\/" : "/";
  const std::size_t debut = chemin.find_first_not_of(separateurs, cheminAppli_.size());
  return debut == std::string_view::npos ? std::string_view{} : chemin.substr(debut);
}

}  // namespace gastrelle
