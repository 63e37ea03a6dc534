#include "controles/BoiteAnnonce.h"

#include <algorithm>

#include <QEvent>
#include <QFontMetricsF>
#include <QTextOption>
#include <QtMath>

#include "controles/Conversion.h"
#include "controles/Teintes.h"

namespace gastrelle {

BoiteAnnonce::BoiteAnnonce(const QString& nom, QWidget* parent) : QPlainTextEdit(parent) {
  setObjectName(nom);
  setAccessibleName(QStringLiteral("Nombre de fiches"));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Window);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(Qt::AlignRight);
  document()->setDefaultTextOption(option);
  Teinte();
  Ajuste();
}

void BoiteAnnonce::PoseTexte(std::string_view texte) {
  setPlainText(VersEcran(texte));
  Ajuste();
}

void BoiteAnnonce::changeEvent(QEvent* evenement) {
  QPlainTextEdit::changeEvent(evenement);
  if (evenement->type() == QEvent::PaletteChange) {
    Teinte();
  } else if (evenement->type() == QEvent::FontChange) {
    Ajuste();
  }
}

void BoiteAnnonce::Ajuste() {
  const QStringList lignes = toPlainText().split(u'\n');
  const QFontMetricsF metrique(font());
  qreal largeur = 0;
  for (const QString& ligne : lignes) {
    largeur = std::max(largeur, metrique.horizontalAdvance(ligne));
  }
  const qreal hauteur = static_cast<qreal>(lignes.size()) * metrique.lineSpacing();
  constexpr int aisance = 2;  // a cursor, and heights that are rounded line by line
  const qreal marges = 2 * document()->documentMargin() + aisance;
  setFixedSize(qCeil(largeur + marges), qCeil(hauteur + marges));
}

void BoiteAnnonce::Teinte() {
  const QColor ton =
      TonDiscret(palette().color(QPalette::WindowText), palette().color(QPalette::Window));
  if (palette().color(QPalette::Text) != ton) {
    QPalette teintes;  // one role of its own: the others stay the desktop's
    teintes.setColor(QPalette::Text, ton);
    setPalette(teintes);
  }
}

}  // namespace gastrelle
