#include "controles/FenetreEnfant.h"

#include <algorithm>

#include <QCloseEvent>

#include "controles/BoitesTexte.h"
#include "controles/Focus.h"
#include "controles/TailleLecture.h"
#include "controles/Touches.h"
#include "data/ProceduresFichiers.h"

namespace gastrelle {

FenetreEnfant::FenetreEnfant(Module1& module, Cadre& cadre, const DescriptionFenetre& description)
    : module_(module), cadre_(cadre), description_(description) {
  setObjectName(QLatin1String(description.nom));
  setWindowTitle(QString::fromUtf16(description.titre));
  PoseTouchesTaille(*this, AgranditLecture);
}

void FenetreEnfant::Active() {
  if (module_.erreurFatale) {
    ErreurFatale(module_);
  }
  if (EstReduite()) {
    return;
  }
  cadre_.Coche(description_.vue);
  RegleCadre();
  module_.services.pointeur.Normal();
}

void FenetreEnfant::Desactive() {
  if (!EstReduite() && !isHidden()) {  // a closed one has been left already
    RangeSaisie();
    RazCadre();
  }
}

void FenetreEnfant::QuandReduite() {
  if (description_.razReduite) {
    RazCadre();
  }
}

void FenetreEnfant::MontreEnregistrement(std::int32_t /*numero*/) {
  throw ErreurExecution(Panne::fichierIntrouvable);
}

void FenetreEnfant::Decharge() {
  parProgramme_ = true;
  Contour().close();
}

void FenetreEnfant::closeEvent(QCloseEvent* evenement) {
  const bool cachee = description_.seCache && !parProgramme_;
  RangeSaisie();
  if (!cachee) {
    EnregistreSaisie();
  }
  RazCadre();
  evenement->setAccepted(!cachee);
  if (cachee) {
    Contour().hide();
  }
}

void FenetreEnfant::RegleCadre() {
  cadre_.PoseContexte(Contexte(description_.vue));
}

void FenetreEnfant::RazCadre() {
  cadre_.QuitteContexte(description_.vue);
}

bool FenetreEnfant::EstReduite() const {
  return parentWidget() != nullptr && parentWidget()->isMinimized();
}

QWidget& FenetreEnfant::Contour() {
  return parentWidget() != nullptr ? *parentWidget() : *this;
}

QSize FenetreEnfant::sizeHint() const {
  return QWidget::sizeHint().expandedTo(Place(description_.taille));
}

QSize FenetreEnfant::minimumSizeHint() const {
  return QWidget::minimumSizeHint().expandedTo(Place(description_.moindre));
}

QSize FenetreEnfant::Place(const QSize& etendue) const {
  const QFontMetrics metrique = fontMetrics();
  return {etendue.width() * metrique.averageCharWidth(), etendue.height() * metrique.lineSpacing()};
}

void FenetreEnfant::Refuse(std::string_view texte, QWidget* focus) {
  module_.services.pointeur.Normal();
  module_.services.messages.Informe(texte, Icone::information);
  if (focus != nullptr) {
    DonneFocus(focus);
  }
}

void FenetreEnfant::RefuseAvecBip(std::string_view texte, QWidget* focus) {
  module_.services.pointeur.Normal();
  module_.services.messages.Bip();
  Refuse(texte, focus);
}

bool FenetreEnfant::EffaceSaisies(std::initializer_list<QWidget*> boites) {
  const bool saisie = std::any_of(boites.begin(), boites.end(),
                                  [](const QWidget* boite) { return !EstVide(*boite); });
  const bool efface = !saisie || module_.services.messages.Demande(
                                     "Effacer la saisie : êtes-sur sûr ?"_1252) == Reponse::oui;
  if (efface) {
    VideBoites(boites);
  }
  return efface;
}

}  // namespace gastrelle
