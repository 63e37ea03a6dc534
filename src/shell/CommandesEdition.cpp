#include "shell/CommandesEdition.h"

#include <QApplication>
#include <QClipboard>

#include "controles/BoitesTexte.h"

namespace gastrelle {
namespace {

/// The selected text of a box, its line breaks as the clipboard wants them.
QString Selection(const LigneTexte& boite) {
  return boite.selectedText();
}

QString Selection(const QPlainTextEdit& boite) {
  return boite.textCursor().selectedText().replace(QChar::ParagraphSeparator, QChar(u'\n'));
}

void RemplaceSelection(LigneTexte& boite, const QString& texte) {
  boite.Insere(texte);
}

void RemplaceSelection(QPlainTextEdit& boite, const QString& texte) {
  boite.insertPlainText(texte);
}

template <class Boite>
void EditeBoite(Edition commande, Boite& boite, Messages& messages) {
  QClipboard& pressePapiers = *QApplication::clipboard();
  const bool change = commande == Edition::couper || commande == Edition::coller;
  if ((change && boite.isReadOnly()) ||
      (commande == Edition::copier && Selection(boite).isEmpty())) {
    messages.Bip();
    return;
  }
  switch (commande) {
    case Edition::couper:
      pressePapiers.setText(Selection(boite));
      RemplaceSelection(boite, {});
      return;
    case Edition::copier:
      pressePapiers.setText(Selection(boite));
      return;
    case Edition::coller:
      RemplaceSelection(boite, pressePapiers.text());
      return;
    case Edition::toutSelectionner:
      boite.selectAll();
      return;
  }
}

}  // namespace

void Edite(Edition commande, QWidget* controle, Messages& messages) {
  if (auto* ligne = dynamic_cast<LigneTexte*>(controle)) {
    EditeBoite(commande, *ligne, messages);
  } else if (auto* zone = qobject_cast<QPlainTextEdit*>(controle)) {
    EditeBoite(commande, *zone, messages);
  } else {
    messages.Bip();
  }
}

}  // namespace gastrelle
