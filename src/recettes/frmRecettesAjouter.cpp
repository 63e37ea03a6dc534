#include "recettes/frmRecettesAjouter.h"

#include "controles/Adresses.h"
#include "controles/Focus.h"
#include "data/ProceduresFichiers.h"
#include "recettes/ImageRecette.h"
#include "recettes/frmRecettesListe.h"

namespace gastrelle {
namespace {

constexpr int coteWeb = 32;
constexpr int bordWeb = 4;

constexpr DescriptionSaisieRecette noms{"Option1",
                                        u"&Une famille de recettes",
                                        u"Une &recette",
                                        "txtSaisieFamille",
                                        u"La nouve&lle famille",
                                        "ComboFamillesAjouter",
                                        "txtSaisieNomRecette",
                                        "txtSaisieRecetteAjouter",
                                        "txtImageAjouter",
                                        "cmdImageAjouter"};

}  // namespace

frmRecettesAjouter::frmRecettesAjouter(const PlaceOnglet& place, frmRecettesListe& laListe)
    : frmRecettesSaisie(place, laListe, noms),
      modes_(options,
             {.controles = {famille},
              .focus = famille,
              .vides = {titre, texte, image},
              .surChoix = [this] { ReprendIndiceFamille(); }},
             {.controles = PourRecette(), .focus = familles, .vides = {famille}}) {
  image->RendLectureSeule();
  connect(image, &QLineEdit::textChanged, this, [this] { ChangeImage(); });
  PoseBoutons();
}

void frmRecettesAjouter::PoseBoutons() {
  QPushButton* web =
      Bouton(QStringLiteral("PictureWeb"), {}, QStringLiteral("web"),
             QStringLiteral("Cliquez ici pour rechercher de nouvelles recettes"), this);
  web->setFlat(true);
  web->setIconSize({coteWeb, coteWeb});
  web->setFixedSize({coteWeb + bordWeb, coteWeb + bordWeb});
  web->setCursor(Qt::PointingHandCursor);
  connect(web, &QPushButton::clicked, this, [this] { OuvreLien(module(), Lien::recettes); });
  boutons().addWidget(web);
  boutons().Valide("cmdValideAjouter", u"Valider les saisies", [this] {
    Opere(module(), [this] { modes_.premier() ? ValideFamille() : ValideRecette(); });
  });
  boutons().Efface("cmdEffacerAjouter", [this] { Efface(); });
  boutons().Aide("cmdAideAjouter");
}

void frmRecettesAjouter::Entre() {
  VideBoites({{famille, titre, texte}});
  ReprendIndiceFamille();
  modes_.RendFocus();
}

void frmRecettesAjouter::ChangeImage() {
  const std::string chemin = image->Texte();
  if (!chemin.empty() && RefuseeAuChoix(chemin)) {
    RefuseImage();
    image->PoseTexte({});
  }
}

void frmRecettesAjouter::ValideFamille() {
  RogneTexte(*famille);
  const std::string nom = famille->Texte();
  if (nom.empty()) {
    hote().Refuse("Il faut saisir le nom de la nouvelle famille de recettes."_1252, famille);
    return;
  }
  if (familles->ContientTexte(nom)) {
    hote().RefuseAvecBip("Cette famille de recettes existe déjà !"_1252, famille);
    return;
  }
  const std::int32_t numero = AjouteFamille(module(), nom);
  liste.RechargeFamilles();
  ComboListe& affichees = *liste.ComboFamilles;
  const int indice = affichees.IndiceDe(numero);
  famille->RemplaceTexte({});
  hote().ChoisitOnglet(ongletListe);
  affichees.Choisit(indice);
}

void frmRecettesAjouter::ValideRecette() {
  RogneTexte(*titre);
  if (EstVide(*titre)) {
    hote().Refuse("Il faut donner un titre à la nouvelle recette."_1252, titre);
    return;
  }
  RogneTexte(*texte);
  const bool avecImage = !EstVide(*image);
  ExigePourAjout(module(), !EstVide(*texte), avecImage);
  if (avecImage && !AccepteImage()) {
    image->PoseTexte({});
    DonneFocus(cherche);
    return;
  }
  EnregistreRecette();
}

void frmRecettesAjouter::EnregistreRecette() {
  const std::int32_t numero = AjouteRecette(module(), Saisie());
  const int indice = familles->currentIndex();
  VideBoites({{titre, texte, image}});
  hote().ChoisitOnglet(ongletListe);
  liste.ComboFamilles->Choisit(indice);
  liste.ComboRecettes->ChoisitNumero(numero);
}

void frmRecettesAjouter::Efface() {
  if (hote().EffaceSaisies({famille, titre, texte, image})) {
    ReprendIndiceFamille();
  }
  modes_.RendFocus();
}

}  // namespace gastrelle
