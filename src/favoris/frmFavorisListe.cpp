#include "favoris/frmFavorisListe.h"

#include "controles/Adresses.h"
#include "controles/Focus.h"
#include "controles/ParcoursListe.h"
#include "controles/TitreEntier.h"
#include "data/Limites.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {
namespace {

constexpr std::array<const char16_t*, 8> legendes{u"Les favo&ris", u"Ca&tégorie", u"A&dresse",
                                                  u"Télé&phone",   u"Fa&x",       u"E-mai&l",
                                                  u"Site &Web",    u"N&otes"};

}  // namespace

frmFavorisListe::frmFavorisListe(const PlaceOnglet& place)
    : frmFavorisFiche(place, {}),
      ComboFavoris(new ComboListe(QStringLiteral("ComboFavoris"), Ordre::alphabetique, this)),
      txtCategorie(new LigneTexte(QStringLiteral("txtCategorie"), limiteNom, this)),
      lienEmail_(new LienTexte(*email, QStringLiteral("Cliquez pour écrire un e-mail"))),
      lienWeb_(new LienTexte(*siteWeb, QStringLiteral("Cliquez pour établir une connexion"))) {
  txtCategorie->RendLectureSeule();
  RendLectureSeule();
  contenu().addWidget(new TitreEntier(*ComboFavoris, this), 0, 0, 1, -1);
  Dispose(ComboFavoris, txtCategorie, legendes);
  boutons().Aide("cmdAideListe");
  ParcourtAuClavier(*this, *ComboFavoris);
  ComboFavoris->surChoix = [this] { AfficheFavori(); };
  lienEmail_->surOuverture = [this] { OuvreLien(module(), Lien::courrier, email->text()); };
  lienWeb_->surOuverture = [this] { OuvreLien(module(), Lien::site, siteWeb->text()); };
}

void frmFavorisListe::Charge() {
  Garde(module(), [&] {
    ExigeFavoris(module());
    RechargeCategories();
  });
  RechargeFavoris();
  ComboFavoris->Choisit(0);
}

void frmFavorisListe::RechargeCategories() {
  categories.Remplace(ListeCategories(module()));
}

void frmFavorisListe::RechargeFavoris() {
  Opere(module(), [&] {
    Liste favoris = ListeFavoris(module());
    ComboFavoris->Vide();
    ComboFavoris->Ajoute(std::move(favoris));
  });
}

void frmFavorisListe::Montre(std::int32_t numero) {
  hote().ChoisitOnglet(ongletListe);
  RechargeFavoris();
  ComboFavoris->ChoisitNumero(numero);
}

void frmFavorisListe::AfficheFavori() {
  Opere(module(), [&] {
    const FavoriLu lu = LitFavori(module(), ComboFavoris->NumeroChoisi());
    txtCategorie->PoseTexte(lu.categorie);
    MontreTextes(lu.textes);
  });
  DonneFocus(txtCategorie);
}

Vue frmFavorisListe::VueCourante() const {
  const TextesFavori textes = Textes();
  return VueFavori{
      ComboFavoris->Texte(), txtCategorie->Texte(), textes.adresse, textes.telephone, textes.fax,
      textes.email,          textes.siteWeb,        textes.notes};
}

void frmFavorisListe::Entre() {
  DonneFocus(txtCategorie);
}

}  // namespace gastrelle
