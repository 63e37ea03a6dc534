#include <gio/gio.h>
#include <memory>

#include "plateforme/Association.h"

namespace gastrelle {
namespace {

struct LibereObjet {
  void operator()(gpointer objet) const { g_object_unref(objet); }
};
struct LibereTexte {
  void operator()(char* texte) const { g_free(texte); }
};

}  // namespace

Ouverture AssociationSysteme::Ouvrir(const std::string& cible) {
  // A path or an address alike; a path comes back as a file address.
  const std::unique_ptr<GFile, LibereObjet> fichier(g_file_new_for_commandline_arg(cible.c_str()));
  const std::unique_ptr<char, LibereTexte> adresse(
      cible.find(':') == std::string::npos || cible.front() == '/' ? g_file_get_uri(fichier.get())
                                                                   : g_strdup(cible.c_str()));
  GError* erreur = nullptr;
  if (g_app_info_launch_default_for_uri(adresse.get(), nullptr, &erreur) != 0) {
    return Ouverture::ouverte;
  }
  const bool aucune = g_error_matches(erreur, G_IO_ERROR, G_IO_ERROR_NOT_SUPPORTED) != 0;
  g_clear_error(&erreur);
  return aucune ? Ouverture::aucuneAssociation : Ouverture::echec;
}

}  // namespace gastrelle
