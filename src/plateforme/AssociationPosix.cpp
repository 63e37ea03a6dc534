#include <gio/gio.h>
#include <memory>

#include "plateforme/AdresseOuverte.h"
#include "plateforme/Association.h"
#include "plateforme/BibliothequePosix.h"

namespace gastrelle {
namespace {

struct Gio {
  Gio() {
    bibliotheque.Prend(ouvre, "g_app_info_launch_default_for_uri");
    bibliotheque.Prend(erreurs, "g_io_error_quark");
  }

  BibliothequeSysteme bibliotheque{"libgio-2.0.so.0"};
  decltype(&g_app_info_launch_default_for_uri) ouvre = nullptr;
  decltype(&g_io_error_quark) erreurs = nullptr;
};

struct LibereTexte {
  void operator()(char* texte) const { g_free(texte); }
};

/// The address of what is to be opened; empty for a text that leads nowhere.
std::string Adresse(const std::string& cible) {
  if (cible.find('\0') != std::string::npos) {
    return {};
  }
  if (cible.starts_with('/')) {
    const std::unique_ptr<char, LibereTexte> adresse(
        g_filename_to_uri(cible.c_str(), nullptr, nullptr));
    return adresse == nullptr ? std::string() : EnUnArgument(adresse.get());
  }
  return AUnSchema(cible) ? EnUnArgument(cible) : std::string();
}

}  // namespace

Ouverture AssociationSysteme::Ouvre(const std::string& cible) {
  static const Gio gio;
  if (!gio.bibliotheque.presente()) {
    return Ouverture::aucuneAssociation;
  }
  const std::string adresse = Adresse(cible);
  if (adresse.empty()) {
    return Ouverture::echec;
  }
  GError* erreur = nullptr;
  if (gio.ouvre(adresse.c_str(), nullptr, &erreur) != 0) {
    return Ouverture::ouverte;
  }
  const bool aucune = g_error_matches(erreur, gio.erreurs(), G_IO_ERROR_NOT_SUPPORTED) != 0;
  g_clear_error(&erreur);
  return aucune ? Ouverture::aucuneAssociation : Ouverture::echec;
}

}  // namespace gastrelle
