#include "usine/Orthographe.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>

#include <toml++/toml.h>

#include "data/Texte1252.h"
#include "doublures/Bibliotheque.h"

namespace gastrelle::usine {
namespace {

constexpr std::string_view joints = "'-";

bool EstLettre(char c) {
  const auto octet = static_cast<unsigned char>(c);
  return (octet >= 'A' && octet <= 'Z') || (octet >= 'a' && octet <= 'z') || octet == 0x8C ||
         octet == 0x9C || octet == 0x9F || (octet >= 0xC0 && octet != 0xD7 && octet != 0xF7);
}

bool EstDansUnMot(char c) {
  return EstLettre(c) || (c >= '0' && c <= '9') || joints.find(c) != std::string_view::npos;
}

bool EstAdresse(std::string_view morceau) {
  return morceau.find("://") != std::string_view::npos ||
         morceau.find('@') != std::string_view::npos || morceau.starts_with("www.");
}

void AjouteMots(std::string_view morceau, std::vector<std::string>& mots) {
  for (std::size_t i = 0; i < morceau.size();) {
    const auto fin =
        static_cast<std::size_t>(std::find_if_not(morceau.begin() + static_cast<std::ptrdiff_t>(i),
                                                  morceau.end(), EstDansUnMot) -
                                 morceau.begin());
    std::string_view mot = morceau.substr(i, fin - i);
    mot.remove_prefix(std::min(mot.find_first_not_of(joints), mot.size()));
    mot = mot.substr(0, mot.find_last_not_of(joints) + 1);
    if (!mot.empty() && mot.find_first_of("0123456789") == std::string_view::npos) {
      mots.push_back(VersUtf8(mot));
    }
    i = fin + 1;
  }
}

/// Without "l'", "qu'" and their like; empty if there is none.
std::string SansElision(const std::string& mot) {
  constexpr std::array<std::string_view, 13> elisions{
      "l", "d", "j", "m", "t", "s", "c", "n", "qu", "jusqu", "lorsqu", "puisqu", "quoiqu"};
  const std::size_t apostrophe = mot.find('\'');
  if (apostrophe == std::string::npos) {
    return {};
  }
  std::string debut = mot.substr(0, apostrophe);
  debut[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(debut[0])));
  const bool elidee = std::find(elisions.begin(), elisions.end(), debut) != elisions.end();
  return elidee ? mot.substr(apostrophe + 1) : std::string();
}

std::vector<std::string> Parties(const std::string& mot) {
  std::vector<std::string> parties;
  std::size_t debut = 0;
  for (std::size_t tiret = mot.find('-'); tiret != std::string::npos;
       tiret = mot.find('-', debut)) {
    parties.push_back(mot.substr(debut, tiret - debut));
    debut = tiret + 1;
  }
  if (debut > 0) {
    parties.push_back(mot.substr(debut));
  }
  return parties;
}

/// A word and all that may have to be judged in its place.
void AjouteFormes(const std::string& mot, Mots& formes) {
  if (mot.empty() || !formes.insert(mot).second) {
    return;
  }
  AjouteFormes(SansElision(mot), formes);
  for (const std::string& partie : Parties(mot)) {
    AjouteFormes(partie, formes);
  }
}

/// The word with its first letter small.
std::string EnMinuscule(const std::string& mot) {
  std::string octets = DepuisUtf8(mot);
  for (int i = 0; i < 256; ++i) {
    const char minuscule = static_cast<char>(i);
    if (minuscule != octets[0] && Majuscules({&minuscule, 1})[0] == octets[0]) {
      octets[0] = minuscule;
      break;
    }
  }
  return VersUtf8(octets);
}

class Jugement {
 public:
  Jugement(const Mots& mots, const std::vector<std::string>& acceptes)
      : acceptes_(acceptes.begin(), acceptes.end()) {
    Mots formes;
    for (const std::string& mot : mots) {
      AjouteFormes(mot, formes);
    }
    inconnus_ = InconnusDuDictionnaire(formes);
    verdict_.inutiles = acceptes_;
    for (const std::string& mot : mots) {
      if (!EstJuste(mot)) {
        verdict_.refuses.insert(mot);
      }
    }
  }

  [[nodiscard]] const Verdict& verdict() const { return verdict_; }

 private:
  bool EstJuste(const std::string& mot) {
    if (mot.empty()) {
      return false;
    }
    if (!inconnus_.contains(mot) || EstAccepte(mot) || EstAccepte(EnMinuscule(mot)) ||
        EstJuste(SansElision(mot))) {
      return true;
    }
    const std::vector<std::string> parties = Parties(mot);
    // All parts are looked at: the list must hold each of them.
    return !parties.empty() && std::count_if(parties.begin(), parties.end(), [&](const auto& p) {
                                 return EstJuste(p);
                               }) == static_cast<std::ptrdiff_t>(parties.size());
  }

  bool EstAccepte(const std::string& mot) {
    verdict_.inutiles.erase(mot);
    return acceptes_.contains(mot);
  }

  Mots acceptes_;
  Mots inconnus_;
  Verdict verdict_;
};

/// Calls `f` with every text of a source that a reader will see.
void PourChaqueTexte(const toml::node& noeud, const std::string& lieu,
                     const std::function<void(const std::string&, const std::string&)>& f) {
  constexpr std::array<std::string_view, 7> muettes{"fichier", "illustration", "image", "email",
                                                    "siteWeb", "telephone",    "fax"};
  if (const auto* texte = noeud.as_string()) {
    f(lieu, texte->get());
  } else if (const auto* liste = noeud.as_array()) {
    for (const toml::node& element : *liste) {
      PourChaqueTexte(element, lieu, f);
    }
  } else if (const auto* table = noeud.as_table()) {
    const std::string nom = (*table)["nom"].value_or((*table)["titre"].value_or(std::string()));
    for (const auto& [cle, valeur] : *table) {
      if (std::find(muettes.begin(), muettes.end(), cle.str()) == muettes.end()) {
        PourChaqueTexte(
            valeur,
            valeur.is_array_of_tables() ? lieu : lieu + ": " + nom + ": " + std::string(cle.str()),
            f);
      }
    }
  }
}

}  // namespace

std::vector<std::string> MotsDe(std::string_view texte) {
  std::vector<std::string> mots;
  const std::string octets = DepuisUtf8(texte);
  for (std::size_t i = 0; i < octets.size();) {
    const std::size_t fin = std::min(octets.find_first_of(" \n", i), octets.size());
    const std::string_view morceau = std::string_view(octets).substr(i, fin - i);
    if (!EstAdresse(morceau)) {
      AjouteMots(morceau, mots);
    }
    i = fin + 1;
  }
  return mots;
}

MotsEtLieux MotsDesSources(const std::filesystem::path& dossier) {
  MotsEtLieux mots;
  for (const auto& place : std::filesystem::recursive_directory_iterator(dossier)) {
    if (place.path().extension() != ".toml") {
      continue;
    }
    const std::string nom = place.path().lexically_relative(dossier).generic_string();
    PourChaqueTexte(toml::parse_file(place.path().string()), nom,
                    [&](const std::string& lieu, const std::string& texte) {
                      for (const std::string& mot : MotsDe(texte)) {
                        mots[mot].push_back(lieu);
                      }
                    });
  }
  return mots;
}

Mots InconnusDuDictionnaire(const Mots& mots) {
  const essai::DossierEssai dossier;
  std::string lignes;
  for (const std::string& mot : mots) {
    lignes += mot + "\n";
  }
  dossier.Ecrit("mots", lignes);
  const std::string base = dossier.chemin().string();
  const std::string commande =
      "hunspell -d fr_FR -i utf-8 -l <" + base + "/mots >" + base + "/inconnus";
  if (std::system(commande.c_str()) != 0) {  // NOLINT(cert-env33-c): a tool of the tests
    throw std::runtime_error("hunspell et son dictionnaire français (hunspell-fr) manquent");
  }
  const std::vector<std::string> inconnus = LitListe(dossier.chemin() / "inconnus");
  return {inconnus.begin(), inconnus.end()};
}

std::vector<std::string> LitListe(const std::filesystem::path& fichier) {
  std::vector<std::string> lignes;
  std::ifstream entree(fichier);
  for (std::string ligne; std::getline(entree, ligne);) {
    if (!ligne.starts_with('#')) {
      lignes.push_back(ligne);
    }
  }
  return lignes;
}

Verdict Juge(const Mots& mots, const std::vector<std::string>& acceptes) {
  return Jugement(mots, acceptes).verdict();
}

}  // namespace gastrelle::usine
