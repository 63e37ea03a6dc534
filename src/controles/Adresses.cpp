#include "controles/Adresses.h"

#include <AdressesConstruites.h>
#include <array>

#include <QUrl>

#include "controles/Reglages.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"

namespace gastrelle {
namespace {

struct LigneLien {
  const char* reglage;
  const char16_t* adresse;   // the build's; empty: the page of presentation tells it
  const char16_t* schema;    // put before the address when it is opened
  const char16_t* section;   // of that page
  const char16_t* aLaPlace;  // words for that page
  std::string_view sansAssociation;
};

constexpr std::string_view sansNavigateur =
    "Aucune association n'est définie pour naviguer sur Internet"_1252;
constexpr std::string_view sansMessagerie =
    "Aucune association n'est définie pour le courrier sur Internet"_1252;

constexpr std::array<LigneLien, 3> liens{{
    {"SiteWeb", adresseSite, u"", u"", u"page de présentation", sansNavigateur},
    {"PageRecettes", adresseRecettes, u"", u"", u"page de présentation", sansNavigateur},
    {"Courrier", adresseCourrier, u"mailto:", u"contact",
     u"page de présentation, «\u00a0Contact\u00a0»", sansMessagerie},
}};

const LigneLien& Ligne(Lien lien) {
  return liens[static_cast<std::size_t>(lien)];
}

/// The page of presentation, as an address that leads to a section of it.
QString Presentation(Module1& module, const QString& section) {
  QUrl page = QUrl::fromLocalFile(
      QString::fromStdString(CheminSysteme(module, module.chemins.De("presentation.html"))));
  page.setFragment(section.isEmpty() ? QString() : section);
  return QString::fromLatin1(page.toEncoded());
}

void Ouvre(Module1& module, const LigneLien& ligne, const QString& cible) {
  if (module.services.association.Ouvre(cible.toStdString()) == Ouverture::aucuneAssociation) {
    module.services.messages.Informe(ligne.sansAssociation, Icone::information);
  }
}

}  // namespace

QString Adresse(Lien lien) {
  const QString reglee =
      Reglages().Texte(QStringLiteral("Adresses/") + QLatin1String(Ligne(lien).reglage));
  return reglee.isEmpty() ? QString::fromUtf16(Ligne(lien).adresse) : reglee;
}

QString TexteDuLien(Lien lien) {
  const QString adresse = Adresse(lien);
  return adresse.isEmpty() ? QString::fromUtf16(Ligne(lien).aLaPlace) : adresse;
}

void OuvreLien(Module1& module, Lien lien, const QString& adresse) {
  Ouvre(module, Ligne(lien), QString::fromUtf16(Ligne(lien).schema) + adresse);
}

void OuvreLien(Module1& module, Lien lien) {
  const QString adresse = Adresse(lien);
  if (adresse.isEmpty()) {
    Ouvre(module, Ligne(lien), Presentation(module, QString::fromUtf16(Ligne(lien).section)));
  } else {
    OuvreLien(module, lien, adresse);
  }
}

}  // namespace gastrelle
