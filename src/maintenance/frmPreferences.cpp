#include "maintenance/frmPreferences.h"

#include <array>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "controles/Boutons.h"
#include "controles/Conversion.h"
#include "controles/Touches.h"
#include "maintenance/Preferences.h"

namespace gastrelle {
namespace {

struct LignePreference {
  const char* nom;  ///< of the pair of options
  const char16_t* legende;
  std::array<const char16_t*, 2> options;
  std::int16_t RecPreferences::*champ;
};

constexpr std::array<LignePreference, 3> lignes{{
    {"OptFenetre",
     u"Fenêtre \"Recettes\" maximalisée lors de l'ouverture du logiciel...........................",
     {u"Oui", u"Non"},
     &RecPreferences::fenetreNormale},
    {"OptPolice",
     u"Impression des recettes en police corps...................................................",
     {u"10", u"20"},
     &RecPreferences::policeGrande},
    {"OptSauve",
     u"Copie de sécurité des fichiers de données lors de la fermeture du logiciel",
     {u"Oui", u"Non"},
     &RecPreferences::sansCopie},
}};

/// Carries the dots of a caption on to the options, whatever the width of the letters.
class PointsDeConduite final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*evenement*/) override {
    QPainter pinceau(this);
    pinceau.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     QString(width() / fontMetrics().horizontalAdvance(u'.'), u'.'));
  }
};

QLayout* AvecConduite(QLabel* legende) {
  auto* ligne = new QHBoxLayout;
  ligne->setSpacing(0);
  ligne->addWidget(legende);
  if (legende->text().endsWith(u'.')) {
    ligne->addWidget(new PointsDeConduite(legende->parentWidget()), 1);
  } else {
    ligne->addStretch(1);
  }
  return ligne;
}

}  // namespace

frmPreferences::frmPreferences(Module1& module, QWidget* parent)
    : QDialog(parent), module_(module) {
  setObjectName(QStringLiteral("frmPreferences"));
  setWindowTitle(VersQt(titreApplication) + QStringLiteral(" - Préférences"));
  setProperty(proprieteSujet, QStringLiteral("preferences"));
  auto* grille = new QGridLayout(this);
  ComposeGrille(*grille);
  AjouteBoutons(*grille);
  grille->setSizeConstraint(QLayout::SetFixedSize);
}

void frmPreferences::ComposeGrille(QGridLayout& grille) {
  constexpr int espace = 18;
  constexpr int marge = 20;
  grille.setContentsMargins(marge, marge, marge, marge);
  grille.setHorizontalSpacing(espace);
  grille.setVerticalSpacing(espace);
  int rang = 0;
  for (const LignePreference& ligne : lignes) {
    const QString texte = QString::fromUtf16(ligne.legende);
    auto* legende = new QLabel(texte, this);
    legende->setTextFormat(Qt::PlainText);
    grille.addLayout(AvecConduite(legende), rang, 0);
    auto* paire = new QButtonGroup(this);
    QString sansPoints = texte;
    while (sansPoints.endsWith(u'.')) {
      sansPoints.chop(1);
    }
    for (int i = 0; i < 2; ++i) {
      const QString titre = QString::fromUtf16(ligne.options[static_cast<std::size_t>(i)]);
      auto* option = new QRadioButton(titre, this);
      option->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(ligne.nom)).arg(i));
      option->setAccessibleName(sansPoints + QStringLiteral(" : ") + titre);
      paire->addButton(option, i);
      grille.addWidget(option, rang, i + 1);
    }
    paire->button(module_.prefs[0].*ligne.champ == 0 ? 0 : 1)->setChecked(true);
    secondes_.push_back(static_cast<QRadioButton*>(paire->button(1)));
    ++rang;
  }
}

void frmPreferences::AjouteBoutons(QGridLayout& grille) {
  QPushButton* ok = Bouton(QStringLiteral("cmdOk"), QStringLiteral("&OK"), {}, {}, this);
  QPushButton* annuler =
      Bouton(QStringLiteral("cmdAnnuler"), QStringLiteral("A&nnuler"), {}, {}, this);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, [this] { Enregistre(); });
  connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
  auto* boutons = new QHBoxLayout;
  boutons->addStretch(1);
  boutons->addWidget(ok);
  boutons->addWidget(annuler);
  boutons->addWidget(BoutonAide(QStringLiteral("cmdAide"), this));
  grille.addLayout(boutons, grille.rowCount(), 0, 1, 3);
}

void frmPreferences::Enregistre() {
  RecPreferences choisies;
  for (std::size_t i = 0; i < lignes.size(); ++i) {
    choisies.*lignes[i].champ = secondes_[i]->isChecked() ? 1 : 0;
  }
  EnregistrePreferences(module_, choisies);
  accept();
}

}  // namespace gastrelle
