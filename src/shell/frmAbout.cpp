#include "shell/frmAbout.h"

#include <array>
#include <functional>

#include <QKeyEvent>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QStyleOption>
#include <QVBoxLayout>

#include "controles/BoitesTexte.h"
#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Icones.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

constexpr int marge = 20;
constexpr int coteIcone = 96;
constexpr int lignesAvertissement = 4;
constexpr double agrandissement = 1.8;

/// The system's information tools, in the order in which they are looked for.
struct OutilSysteme {
  const char* programme;
  const char* argument;
};

constexpr std::array<OutilSysteme, 6> outils{{
    {"gnome-control-center", "info-overview"},
    {"kinfocenter", ""},
    {"xfce4-about", ""},
    {"mate-about", ""},
    {"hardinfo", ""},
    {"msinfo32", ""},
}};

bool Demarre(const OutilSysteme& outil) {
  const QString programme = QStandardPaths::findExecutable(QLatin1String(outil.programme));
  QStringList arguments;
  if (*outil.argument != '\0') {
    arguments << QLatin1String(outil.argument);
  }
  return !programme.isEmpty() && QProcess::startDetached(programme, arguments);
}

/// A text that opens an address, with the mouse or the keyboard.
class LienTexte final : public QLabel {
 public:
  LienTexte(const QString& texte, std::function<void()> action, QWidget* parent)
      : QLabel(texte, parent), action_(std::move(action)) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::Link);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleDescription(QStringLiteral("Lien"));
    QFont souligne = font();
    souligne.setUnderline(true);
    setFont(souligne);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* evenement) override {
    if (evenement->button() == Qt::LeftButton && rect().contains(evenement->position().toPoint())) {
      action_();
    }
  }

  void keyPressEvent(QKeyEvent* evenement) override {
    switch (evenement->key()) {
      case Qt::Key_Space:
      case Qt::Key_Return:
      case Qt::Key_Enter:
        action_();
        return;
      default:
        QLabel::keyPressEvent(evenement);
    }
  }

  void paintEvent(QPaintEvent* evenement) override {
    QLabel::paintEvent(evenement);
    if (hasFocus()) {
      QPainter pinceau(this);
      QStyleOptionFocusRect cadre;
      cadre.initFrom(this);
      style()->drawPrimitive(QStyle::PE_FrameFocusRect, &cadre, &pinceau, this);
    }
  }

 private:
  std::function<void()> action_;
};

}  // namespace

frmAbout::frmAbout(Module1& module, QWidget* parent) : QDialog(parent), module_(module) {
  setObjectName(QStringLiteral("frmAbout"));
  const QString titre = VersQt(titreApplication);
  setWindowTitle(QStringLiteral("A propos de ") + titre);
  setProperty(proprieteSujet, QStringLiteral("cadre"));
  setModal(true);

  auto* avertissement = new ZoneTexte(QStringLiteral("txtDisclaimer"), sansLimite, this);
  avertissement->RendLectureSeule();
  avertissement->PoseTexte(
      std::string(
          "L 'auteur décline toute responsabilité quant à d'éventuels dommages résultant de "
          "l'utilisation de ''"_1252) +
      std::string(titreApplication) +
      std::string("'' et n'assurera aucune garantie en ce sens."_1252));
  avertissement->setFixedHeight(lignesAvertissement * avertissement->fontMetrics().lineSpacing() +
                                marge);
  QLabel* legende = Etiquette("lblDisclaimer", QStringLiteral("Avertissement"));
  legende->setBuddy(avertissement);
  avertissement->setAccessibleName(legende->text());

  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, marge, marge, marge);
  page->setSpacing(marge / 2);
  page->addLayout(Entete());
  page->addSpacing(marge / 2);
  page->addLayout(RangeeLiens());
  page->addSpacing(marge / 2);
  page->addWidget(legende);
  page->addWidget(avertissement);
  page->addLayout(RangeeBoutons());
  page->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel* frmAbout::Etiquette(const char* nom, const QString& texte) {
  auto* etiquette = new QLabel(texte, this);
  etiquette->setObjectName(QLatin1String(nom));
  etiquette->setTextFormat(Qt::PlainText);
  return etiquette;
}

QLayout* frmAbout::Entete() {
  QLabel* icone = Etiquette("picIcon", {});
  icone->setAccessibleName(QStringLiteral("Emblème de Gastrelle"));
  icone->setPixmap(IconeDe(QStringLiteral("gastrelle")).pixmap(coteIcone, coteIcone));
  QLabel* titre = Etiquette("lblTitle", VersQt(titreApplication));
  QFont police = titre->font();
  police.setPointSizeF(police.pointSizeF() * agrandissement);
  police.setBold(true);
  titre->setFont(police);
  auto* textes = new QVBoxLayout;
  textes->addWidget(titre);
  textes->addWidget(
      Etiquette("lblDescription", QStringLiteral("Tout pour la gastronomie ! Ou presque...")));
  textes->addWidget(
      Etiquette("lblVersion", QStringLiteral("Version ") + QStringLiteral(VERSION_GASTRELLE)));
  textes->addWidget(Etiquette(
      "lblCopyright", QStringLiteral("© 2026 Gastrelle. Logiciel libre, sous licence MIT.")));
  textes->addStretch(1);
  auto* entete = new QHBoxLayout;
  entete->setSpacing(marge);
  entete->addWidget(icone, 0, Qt::AlignTop);
  entete->addLayout(textes, 1);
  return entete;
}

QLayout* frmAbout::RangeeLiens() {
  auto* grille = new QGridLayout;
  grille->setHorizontalSpacing(marge);
  QLabel* internet = Etiquette("lbInfolWeb", QStringLiteral("Internet"));
  QFont gras = internet->font();
  gras.setBold(true);
  internet->setFont(gras);
  grille->addWidget(internet, 0, 0);
  AjouteLien(*grille, "lblWeb", QStringLiteral(". mise à jour, recettes"), "lblAdresselWeb",
             Lien::site);
  AjouteLien(*grille, "lblEmail", QStringLiteral(". e-mail :"), "lblAdresseEmail", Lien::courrier);
  grille->setColumnStretch(1, 1);
  return grille;
}

void frmAbout::AjouteLien(QGridLayout& grille, const char* nomLegende, const QString& legende,
                          const char* nom, Lien lien) {
  auto* texte = new LienTexte(
      TexteDuLien(lien), [this, lien] { OuvreLien(module_, lien); }, this);
  texte->setObjectName(QLatin1String(nom));
  const int rang = grille.rowCount();
  grille.addWidget(Etiquette(nomLegende, legende), rang, 0);
  grille.addWidget(texte, rang, 1, Qt::AlignLeft);
}

QLayout* frmAbout::RangeeBoutons() {
  QPushButton* infos =
      Bouton(QStringLiteral("cmdSysInfo"), QStringLiteral("Infos &système..."), {}, {}, this);
  QPushButton* ok = Bouton(QStringLiteral("cmdOK"), QStringLiteral("&OK"), {}, {}, this);
  infos->setAutoDefault(false);
  ok->setDefault(true);
  ok->setFocus(Qt::OtherFocusReason);
  connect(infos, &QPushButton::clicked, this, [this] { StartSysInfo(); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* boutons = new QHBoxLayout;
  boutons->addWidget(infos);
  boutons->addStretch(1);
  boutons->addWidget(ok);
  return boutons;
}

void frmAbout::StartSysInfo() {
  if (std::none_of(outils.begin(), outils.end(), Demarre)) {
    module_.services.messages.Informe(
        "Les informations système ne sont pas disponibles pour l'instant"_1252, Icone::information);
  }
}

}  // namespace gastrelle
