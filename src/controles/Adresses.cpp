#include "controles/Adresses.h"

#include <array>

#include <QSettings>

#include "controles/Conversion.h"

namespace gastrelle {
namespace {

struct LigneLien {
  const char* reglage;
  const char16_t* defaut;
  const char16_t* schema;  // put before the address when it is opened
  std::string_view sansAssociation;
};

constexpr std::string_view sansNavigateur =
    "Aucune association n'est définie pour naviguer sur Internet"_1252;

constexpr std::array<LigneLien, 3> liens{{
    {"SiteWeb", u"https://www.gastrelle.example/", u"", sansNavigateur},
    {"PageRecettes", u"https://www.gastrelle.example/recettes", u"", sansNavigateur},
    {"Courrier", u"contact@gastrelle.example", u"mailto:",
     "Aucune association n'est définie pour le courrier sur Internet"_1252},
}};

const LigneLien& Ligne(Lien lien) {
  return liens[static_cast<std::size_t>(lien)];
}

}  // namespace

QString Adresse(Lien lien) {
  const QSettings reglages(QSettings::UserScope, VersQt(titreApplication));
  return reglages
      .value(QStringLiteral("Adresses/") + QLatin1String(Ligne(lien).reglage),
             QString::fromUtf16(Ligne(lien).defaut))
      .toString();
}

void OuvreLien(Module1& module, Lien lien, const QString& adresse) {
  const QString cible = QString::fromUtf16(Ligne(lien).schema) + adresse;
  if (module.services.association.Ouvre(cible.toStdString()) == Ouverture::aucuneAssociation) {
    module.services.messages.Informe(Ligne(lien).sansAssociation, Icone::information);
  }
}

}  // namespace gastrelle
