#include <gio/gio.h>
#include <memory>

#include "plateforme/Association.h"
#include "plateforme/BibliothequePosix.h"

namespace gastrelle {
namespace {

struct Gio {
  Gio() {
    bibliotheque.Prend(fichier, "g_file_new_for_commandline_arg");
    bibliotheque.Prend(adresse, "g_file_get_uri");
    bibliotheque.Prend(ouvre, "g_app_info_launch_default_for_uri");
    bibliotheque.Prend(erreurs, "g_io_error_quark");
    bibliotheque.Prend(lache, "g_object_unref");
  }

  BibliothequeSysteme bibliotheque{"libgio-2.0.so.0"};
  decltype(&g_file_new_for_commandline_arg) fichier = nullptr;
  decltype(&g_file_get_uri) adresse = nullptr;
  decltype(&g_app_info_launch_default_for_uri) ouvre = nullptr;
  decltype(&g_io_error_quark) erreurs = nullptr;
  decltype(&g_object_unref) lache = nullptr;
};

struct LibereTexte {
  void operator()(char* texte) const { g_free(texte); }
};
using Texte = std::unique_ptr<char, LibereTexte>;

/// The address of a path; an address stays what it is.
Texte Adresse(const Gio& gio, const std::string& cible) {
  if (cible.find(':') != std::string::npos && cible.front() != '/') {
    return Texte(g_strdup(cible.c_str()));
  }
  GFile* fichier = gio.fichier(cible.c_str());
  Texte adresse(gio.adresse(fichier));
  gio.lache(fichier);
  return adresse;
}

}  // namespace

Ouverture AssociationSysteme::Ouvre(const std::string& cible) {
  static const Gio gio;
  if (!gio.bibliotheque.presente()) {
    return Ouverture::aucuneAssociation;
  }
  const Texte adresse = Adresse(gio, cible);
  GError* erreur = nullptr;
  if (gio.ouvre(adresse.get(), nullptr, &erreur) != 0) {
    return Ouverture::ouverte;
  }
  const bool aucune = g_error_matches(erreur, gio.erreurs(), G_IO_ERROR_NOT_SUPPORTED) != 0;
  g_clear_error(&erreur);
  return aucune ? Ouverture::aucuneAssociation : Ouverture::echec;
}

}  // namespace gastrelle
