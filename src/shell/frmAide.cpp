#include "shell/frmAide.h"

#include <algorithm>

#include <QKeyEvent>
#include <QShortcut>
#include <QSplitter>
#include <QTextCursor>
#include <QVBoxLayout>

#include "controles/Icones.h"
#include "controles/Touches.h"

namespace gastrelle {
namespace {

constexpr int largeur = 980;
constexpr int hauteur = 640;
constexpr int largeurVolet = 320;
constexpr int marge = 6;
constexpr int margePage = 16;
constexpr int roleSujet = Qt::UserRole;

}  // namespace

frmAide::frmAide(const FichierAide& fichier)
    : fichier_(fichier),
      barre_(new QToolBar(this)),
      txtRecherche_(new QLineEdit(this)),
      volet_(new QStackedWidget(this)),
      treeSommaire_(new QTreeWidget(this)),
      lstResultats_(new QListWidget(this)),
      txtPage_(new QTextBrowser(this)) {
  setObjectName(QStringLiteral("frmAide"));
  setWindowTitle(QStringLiteral("Aide de Gastrelle"));
  setWindowIcon(IconeDe(QStringLiteral("aide"), plusGrandeIconeFenetre));
  setAttribute(Qt::WA_QuitOnClose, false);
  setProperty(proprieteSujet, QStringLiteral("aide"));
  txtPage_->setObjectName(QStringLiteral("txtPage"));
  txtPage_->setAccessibleName(QStringLiteral("Page d'aide"));
  txtPage_->document()->setDocumentMargin(margePage);

  auto* partage = new QSplitter(this);
  partage->addWidget(BatitVolet());
  partage->addWidget(txtPage_);
  partage->setChildrenCollapsible(false);
  partage->setStretchFactor(1, 1);
  partage->setSizes({largeurVolet, largeur - largeurVolet});
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(marge, 0, marge, marge);
  page->addWidget(BatitBarre());
  page->addWidget(partage, 1);
  RemplitSommaire();
  Branche();
  txtPage_->setFocus(Qt::OtherFocusReason);
  resize(largeur, hauteur);
}

QAction* frmAide::Bouton(const char* nom, const QIcon& icone, const QString& titre,
                         const QKeySequence& touche) {
  QAction* action = barre_->addAction(icone, titre);
  action->setShortcut(touche);
  action->setToolTip(titre +
                     QStringLiteral(" (%1)").arg(touche.toString(QKeySequence::NativeText)));
  QWidget* controle = barre_->widgetForAction(action);
  controle->setObjectName(QStringLiteral("tbAide.") + QLatin1String(nom));
  controle->setFocusPolicy(Qt::TabFocus);
  return action;
}

QToolBar* frmAide::BatitBarre() {
  barre_->setObjectName(QStringLiteral("tbAide"));
  barre_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QAction* precedent = Bouton("Precedent", style()->standardIcon(QStyle::SP_ArrowBack),
                              QStringLiteral("Précédent"), QKeySequence(Qt::ALT | Qt::Key_Left));
  QAction* suivant = Bouton("Suivant", style()->standardIcon(QStyle::SP_ArrowForward),
                            QStringLiteral("Suivant"), QKeySequence(Qt::ALT | Qt::Key_Right));
  QAction* sommaire = Bouton("Sommaire", IconeDe(QStringLiteral("aide")),
                             QStringLiteral("Sommaire"), QKeySequence(Qt::ALT | Qt::Key_Home));
  precedent->setEnabled(false);
  suivant->setEnabled(false);
  connect(precedent, &QAction::triggered, txtPage_, &QTextBrowser::backward);
  connect(suivant, &QAction::triggered, txtPage_, &QTextBrowser::forward);
  connect(txtPage_, &QTextBrowser::backwardAvailable, precedent, &QAction::setEnabled);
  connect(txtPage_, &QTextBrowser::forwardAvailable, suivant, &QAction::setEnabled);
  connect(sommaire, &QAction::triggered, this, [this] {
    txtRecherche_->clear();
    Montre({});
  });
  return barre_;
}

QWidget* frmAide::BatitVolet() {
  txtRecherche_->setObjectName(QStringLiteral("txtRecherche"));
  txtRecherche_->setPlaceholderText(QStringLiteral("Rechercher dans l'aide"));
  txtRecherche_->setAccessibleName(txtRecherche_->placeholderText());
  txtRecherche_->setClearButtonEnabled(true);
  treeSommaire_->setObjectName(QStringLiteral("treeSommaire"));
  treeSommaire_->setAccessibleName(QStringLiteral("Sommaire"));
  treeSommaire_->setHeaderHidden(true);
  lstResultats_->setObjectName(QStringLiteral("lstResultats"));
  lstResultats_->setAccessibleName(QStringLiteral("Pages trouvées"));
  volet_->addWidget(treeSommaire_);
  volet_->addWidget(lstResultats_);
  auto* panneau = new QWidget(this);
  auto* colonne = new QVBoxLayout(panneau);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->addWidget(txtRecherche_);
  colonne->addWidget(volet_, 1);
  return panneau;
}

void frmAide::RemplitSommaire() {
  for (const ChapitreAide& chapitre : fichier_.sommaire()) {
    auto* tete = new QTreeWidgetItem(treeSommaire_, {chapitre.titre});
    tete->setFlags(Qt::ItemIsEnabled);
    QFont gras = tete->font(0);
    gras.setBold(true);
    tete->setFont(0, gras);
    for (const PageAide& page : chapitre.pages) {
      auto* entree = new QTreeWidgetItem(tete, {page.titre});
      entree->setData(0, roleSujet, page.sujet);
    }
  }
  treeSommaire_->expandAll();
}

void frmAide::Branche() {
  connect(treeSommaire_, &QTreeWidget::currentItemChanged, this,
          [this](const QTreeWidgetItem* entree) {
            if (entree != nullptr && !entree->data(0, roleSujet).isNull()) {
              Montre(entree->data(0, roleSujet).toString());
            }
          });
  connect(txtPage_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& adresse) { SuitPage(FichierAide::Sujet(adresse)); });
  connect(txtRecherche_, &QLineEdit::textChanged, this, [this] { Cherche(); });
  connect(txtRecherche_, &QLineEdit::returnPressed, this,
          [this] { OuvreResultat(lstResultats_->item(0)); });
  connect(lstResultats_, &QListWidget::currentItemChanged, this,
          [this](const QListWidgetItem* entree) { OuvreResultat(entree); });
  connect(lstResultats_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* entree) { OuvreResultat(entree); });
  const auto raccourci = [this](const QKeySequence& touche, auto action) {
    connect(new QShortcut(touche, this), &QShortcut::activated, this, action);
  };
  raccourci(QKeySequence::Find, [this] {
    txtRecherche_->setFocus(Qt::ShortcutFocusReason);
    txtRecherche_->selectAll();
  });
  raccourci(QKeySequence::ZoomIn, [this] { txtPage_->zoomIn(); });
  raccourci(QKeySequence::ZoomOut, [this] { txtPage_->zoomOut(); });
}

void frmAide::Montre(const QString& sujet) {
  const QString premiere = fichier_.sommaire().front().pages.front().sujet;
  txtPage_->setSource(FichierAide::Adresse(fichier_.Contient(sujet) ? sujet : premiere));
}

void frmAide::Cherche() {
  const QString texte = txtRecherche_->text();
  const QSignalBlocker silence(lstResultats_);
  lstResultats_->clear();
  volet_->setCurrentWidget(texte.trimmed().isEmpty() ? static_cast<QWidget*>(treeSommaire_)
                                                     : lstResultats_);
  if (!recherche_) {
    recherche_.emplace(fichier_);
  }
  for (const PageAide& page : recherche_->Cherche(texte)) {
    auto* entree = new QListWidgetItem(page.titre, lstResultats_);
    entree->setData(roleSujet, page.sujet);
  }
  if (lstResultats_->count() == 0) {
    auto* rien = new QListWidgetItem(QStringLiteral("Aucune page trouvée"), lstResultats_);
    rien->setFlags(Qt::NoItemFlags);
  }
  Surligne();
}

void frmAide::OuvreResultat(const QListWidgetItem* entree) {
  if (entree != nullptr && !entree->data(roleSujet).isNull()) {
    Montre(entree->data(roleSujet).toString());
    VaAuPremierMot();
  }
}

void frmAide::SuitPage(const QString& sujet) {
  const QSignalBlocker silence(treeSommaire_);
  for (QTreeWidgetItemIterator i(treeSommaire_); *i != nullptr; ++i) {
    if ((*i)->data(0, roleSujet).toString() == sujet) {
      treeSommaire_->setCurrentItem(*i);
    }
  }
  Surligne();
}

void frmAide::Surligne() {
  QTextCharFormat marque;
  marque.setBackground(QColor(255, 224, 110));
  marque.setForeground(Qt::black);
  QList<QTextEdit::ExtraSelection> marques;
  for (const QRegularExpression& motif : RechercheAide::Expressions(txtRecherche_->text())) {
    QTextCursor ou(txtPage_->document());
    while (!(ou = txtPage_->document()->find(motif, ou)).isNull()) {
      marques.append({ou, marque});
    }
  }
  txtPage_->setExtraSelections(marques);
}

void frmAide::VaAuPremierMot() {
  const auto marques = txtPage_->extraSelections();
  const auto premiere =
      std::min_element(marques.begin(), marques.end(),
                       [](const auto& a, const auto& b) { return a.cursor < b.cursor; });
  if (premiere != marques.end()) {
    QTextCursor ou = premiere->cursor;
    ou.clearSelection();
    txtPage_->setTextCursor(ou);
  }
}

void frmAide::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(evenement);
}

}  // namespace gastrelle
