#include "favoris/frmFavorisFiche.h"

#include "controles/FeuilleTexte.h"
#include "controles/Focus.h"
#include "controles/Legende.h"
#include "data/Limites.h"

namespace gastrelle {

frmFavorisFiche::frmFavorisFiche(const PlaceOnglet& place, const QString& suffixe)
    : PageOnglet(place),
      adresse(new ZoneTexte(QStringLiteral("txtAdresse") + suffixe, limiteAdressePostale, this)),
      telephone(new LigneTexte(QStringLiteral("txtTelephone") + suffixe, limiteTelephone, this)),
      fax(new LigneTexte(QStringLiteral("txtFax") + suffixe, limiteTelephone, this)),
      email(new LigneTexte(QStringLiteral("txtEmail") + suffixe, limiteAdresseReseau, this)),
      siteWeb(new LigneTexte(QStringLiteral("txtWeb") + suffixe, limiteAdresseReseau, this)),
      notes(new FeuilleTexte(
          suffixe.isEmpty() ? QStringLiteral("txtNotes") : QStringLiteral("txtNote") + suffixe,
          limiteTexte, this)) {}

template <class Action>
void frmFavorisFiche::PourChaque(Action action) const {
  action(*adresse, &TextesFavori::adresse);
  action(*telephone, &TextesFavori::telephone);
  action(*fax, &TextesFavori::fax);
  action(*email, &TextesFavori::email);
  action(*siteWeb, &TextesFavori::siteWeb);
  action(*notes, &TextesFavori::notes);
}

void frmFavorisFiche::Dispose(QWidget* premier, QWidget* second, const Legendes& legendes) {
  constexpr int lignesAdresse = 5;
  const auto legende = [&](std::size_t champ) { return QString::fromUtf16(legendes[champ]); };
  AjouteACote(legende(0), premier);
  AjouteACote(legende(1), second);
  adresse->setMaximumHeight(lignesAdresse * fontMetrics().lineSpacing());
  contenu().setRowStretch(AjouteACote(legende(2), adresse), 1);
  AjoutePaire(legendes[3], telephone, legendes[4], fax);
  AjoutePaire(legendes[5], email, legendes[6], siteWeb);
  contenu().setRowStretch(AjouteACote(legende(7), notes), 2);
  OrdonneClavier({premier, second, adresse, telephone, fax, email, siteWeb, notes});
}

void frmFavorisFiche::AjoutePaire(const char16_t* legende, QWidget* controle,
                                  const char16_t* autreLegende, QWidget* autre) {
  const int rang = contenu().count() == 0 ? 0 : contenu().rowCount();
  contenu().addWidget(Legende(QString::fromUtf16(legende), controle), rang, 0);
  contenu().addWidget(controle, rang, 1);
  contenu().addWidget(Legende(QString::fromUtf16(autreLegende), autre), rang, 2);
  contenu().addWidget(autre, rang, 3);
  contenu().setColumnStretch(3, 1);
}

void frmFavorisFiche::RendLectureSeule() {
  PourChaque([](auto& boite, auto /*membre*/) { boite.RendLectureSeule(); });
}

std::vector<QWidget*> frmFavorisFiche::Boites() const {
  std::vector<QWidget*> boites;
  PourChaque([&](auto& boite, auto /*membre*/) { boites.push_back(&boite); });
  return boites;
}

TextesFavori frmFavorisFiche::Textes() const {
  TextesFavori textes;
  PourChaque([&](const auto& boite, auto membre) { textes.*membre = boite.Texte(); });
  return textes;
}

void frmFavorisFiche::MontreTextes(const TextesFavori& textes) {
  PourChaque([&](auto& boite, auto membre) { boite.PoseTexte(textes.*membre); });
}

void frmFavorisFiche::Reprend(const TextesFavori& textes, std::int32_t numero) {
  PourChaque([&](auto& boite, auto membre) { ReprendTexte(boite, textes.*membre, numero); });
}

void frmFavorisFiche::RogneTextes() {
  PourChaque([](auto& boite, auto /*membre*/) { RogneTexte(boite); });
}

}  // namespace gastrelle
