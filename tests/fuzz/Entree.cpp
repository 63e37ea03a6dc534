#include "fuzz/Entree.h"

#include <algorithm>

#include "listes/Notes.h"

namespace gastrelle::essai {
namespace {

/// The header of a catalogue or the head of a pool, as the start wants it.
std::string Tete(Module1& module, Donnees fichier, std::int16_t compte) {
  if (Ligne(fichier).controle == Controle::signature) {
    return std::string(Signature(fichier));
  }
  std::string tete;
  module.AvecCatalogue(fichier, [&](auto& catalogue) {
    auto entete = catalogue.entete();
    entete.actif = std::max(compte, Ligne(fichier).moindre);
    NomOuSignature(entete) = Signature(fichier);
    const auto octets = Code(entete);
    tete.assign(octets.data(), octets.size());
  });
  return tete;
}

/// A file that nobody replaced: its head, and what the start reads behind it.
std::string Ordinaire(Module1& module, Donnees fichier) {
  switch (fichier) {
    case Donnees::GLMV:
      return std::string(longueurEnregistrement<RecMillesime>, '\0');
    case Donnees::GLMC:
      return std::string(nombreRayons * longueurEnregistrement<LigneRayon>, '\0');
    case Donnees::GLPREF:
      return std::string(longueurEnregistrement<RecPreferences>, '\0');
    default:
      return Tete(module, fichier, 0);
  }
}

std::string Remplace(Module1& module, Donnees fichier, std::string_view octets, bool garde) {
  if (!garde) {
    return std::string(octets);
  }
  Lecteur lecteur(octets);
  const bool compte = Ligne(fichier).controle == Controle::entete;
  const auto nombre = static_cast<std::int16_t>(compte ? lecteur.Mot() : 0U);
  return Tete(module, fichier, nombre) + std::string(lecteur.Morceau(octets.size()));
}

}  // namespace

unsigned Lecteur::Octet() {
  const std::string_view un = Morceau(1);
  return un.empty() ? 0U : static_cast<unsigned char>(un.front());
}

unsigned Lecteur::Mot() {
  const unsigned bas = Octet();
  return bas | (Octet() << 8U);
}

std::string_view Lecteur::Morceau(std::size_t longueur) {
  const std::string_view morceau = octets_.substr(0, longueur);
  octets_.remove_prefix(morceau.size());
  return morceau;
}

bool VaSurDisque(std::string_view entree) {
  return (Lecteur(entree).Octet() & surDisque) != 0;
}

Suite PoseFichiers(std::string_view entree, Module1& module) {
  AccesFichiers& disque = module.services.disque;
  const auto pose = [&disque](const std::string& nom, std::string_view octets) {
    disque.Ouvre(nom)->Ecrit(0, octets);
  };
  Lecteur lecteur(entree);
  Suite suite;
  suite.choix = lecteur.Octet();
  const unsigned remplaces = lecteur.Mot() | (lecteur.Octet() << 16U);
  suite.panne = lecteur.Mot();
  for (std::size_t i = 0; i < nombreFichiers; ++i) {
    const auto fichier = static_cast<Donnees>(i);
    const bool copie = (suite.choix & enFabrique) != 0 && fichier != Donnees::GLPREF;
    const std::string nom = copie ? NomFabrique(fichier) : Nom(fichier);
    if ((remplaces >> i & 1U) == 0) {
      pose(nom, Ordinaire(module, fichier));
    } else if (const unsigned longueur = lecteur.Mot(); longueur != absent) {
      pose(nom,
           Remplace(module, fichier, lecteur.Morceau(longueur), (suite.choix & gardeEntetes) != 0));
    }
  }
  if ((remplaces >> nombreFichiers & 1U) != 0) {
    const unsigned longueur = lecteur.Mot();
    pose(std::string(fichierNotes), lecteur.Morceau(longueur));
  }
  if ((suite.choix & avecImages) != 0) {
    disque.CreeDossier("IMAGE");
    pose(imageDuDossier, "x");
  }
  suite.intrus = lecteur.reste();
  return suite;
}

}  // namespace gastrelle::essai
