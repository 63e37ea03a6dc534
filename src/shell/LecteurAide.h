// A page of the help on the screen: its style is filled with colours of the palette, whenever that
// changes.
#pragma once

#include <QList>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

namespace gastrelle {

class LecteurAide final : public QTextBrowser {
 public:
  explicit LecteurAide(QWidget* parent);

  /// The mark on the paragraph that bears an anchor; none if none does.
  [[nodiscard]] QList<ExtraSelection> MarqueDuParagraphe(const QString& ancre) const;
  /// The letters larger (or smaller, if negative) by so many points; 0: as they were at first.
  void Agrandit(int points);

  /// What the help file holds, and nothing else: a page names no file of the disk. Pages have no
  /// pictures.
  QVariant loadResource(int genre, const QUrl& adresse) override;

 protected:
  void changeEvent(QEvent* evenement) override;
  /// A paragraph that is asked for is shown with the lines above it, so that its heading is seen.
  void doSetSource(const QUrl& adresse, QTextDocument::ResourceType genre) override;

 private:
  [[nodiscard]] QTextCursor Paragraphe(const QString& ancre) const;
  /// The same page anew, with the same selection and the same place at the top.
  void Recharge();
};

}  // namespace gastrelle
