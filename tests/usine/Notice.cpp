#include "usine/Notice.h"

#include <algorithm>

namespace gastrelle::usine {

bool Dit(const std::string& texte, std::initializer_list<const char*> tours) {
  return std::any_of(tours.begin(), tours.end(),
                     [&](const char* tour) { return texte.find(tour) != std::string::npos; });
}

std::vector<std::string> Lignes(const std::string& texte) {
  std::vector<std::string> lignes;
  for (std::size_t debut = 0; debut <= texte.size();) {
    const std::size_t fin = std::min(texte.find('\n', debut), texte.size());
    lignes.push_back(texte.substr(debut, fin - debut));
    debut = fin + 1;
  }
  return lignes;
}

std::vector<std::string> Morceaux(const std::string& texte, const char* coupures) {
  std::vector<std::string> morceaux;
  for (std::size_t debut = 0; debut < texte.size();) {
    const std::size_t fin = std::min(texte.find_first_of(coupures, debut), texte.size() - 1) + 1;
    morceaux.push_back(texte.substr(debut, fin - debut));
    debut = fin;
  }
  return morceaux;
}

std::vector<std::smatch> Toutes(const std::string& texte, const std::regex& expression) {
  return {std::sregex_iterator(texte.begin(), texte.end(), expression), std::sregex_iterator()};
}

std::string Etendue::EnTexte() const {
  return std::to_string(de) + (a > de ? "-" + std::to_string(a) : "") + " °C";
}

bool Etendue::TientDans(const std::vector<Etendue>& etendues) const {
  return std::any_of(etendues.begin(), etendues.end(),
                     [&](const Etendue& e) { return e.de <= de && a <= e.a; });
}

std::vector<ChaleurDite> ChaleursDites(const std::string& texte) {
  static const std::regex degres("([0-9]+)(?:(?:-| et | à )([0-9]+))? °C");
  std::vector<ChaleurDite> dites;
  std::size_t debut = 0;
  for (const std::smatch& lue : Toutes(texte, degres)) {
    const auto place = static_cast<std::size_t>(lue.position());
    const int premiere = std::stoi(lue[1]);
    dites.push_back({{premiere, lue[2].matched ? std::stoi(lue[2]) : premiere},
                     texte.substr(debut, place - debut)});
    debut = place + static_cast<std::size_t>(lue.length());
  }
  return dites;
}

std::vector<Etendue> Chaleurs(const std::string& texte) {
  std::vector<Etendue> etendues;
  for (const ChaleurDite& dite : ChaleursDites(texte)) {
    etendues.push_back(dite.etendue);
  }
  return etendues;
}

std::optional<int> Convives(const std::string& texte) {
  static const std::regex debut("^Pour ([0-9]+)( à [0-9]+)? (personne|convive)");
  std::smatch lu;
  return std::regex_search(texte, lu, debut) ? std::optional(std::stoi(lu[1])) : std::nullopt;
}

std::vector<std::string> Services(const Notice& menu) {
  const std::string repas = menu.texte.substr(0, menu.texte.find("\nOrganisation"));
  std::vector<std::string> services;
  for (const std::string& ligne : Lignes(repas)) {
    if (ligne.find(" : ") != std::string::npos && !Convives(ligne)) {
      services.push_back(ligne);
    }
  }
  return services;
}

std::vector<std::string> Etapes(const Notice& recette) {
  static const std::regex numero("^[0-9]+\\. .*");
  std::vector<std::string> etapes = Lignes(recette.texte);
  std::erase_if(etapes, [](const std::string& ligne) { return !std::regex_match(ligne, numero); });
  return etapes;
}

}  // namespace gastrelle::usine
