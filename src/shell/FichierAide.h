// The compiled help: one file that holds every page, the style and the table of contents.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace gastrelle {

struct PageAide {
  QString sujet;
  QString titre;
};

struct ChapitreAide {
  QString titre;
  std::vector<PageAide> pages;
};

class FichierAide {
 public:
  /// Raises ErreurExecution when there is no such file or it can't be read. Null when it is
  /// damaged: its seal doesn't fit, or a page of its contents isn't there; and when it is larger
  /// than any help, or built so that showing it would take much memory or time.
  static std::unique_ptr<FichierAide> Ouvre(const QString& chemin);

  FichierAide(const FichierAide&) = delete;
  FichierAide& operator=(const FichierAide&) = delete;
  ~FichierAide();

  [[nodiscard]] const std::vector<ChapitreAide>& sommaire() const { return sommaire_; }
  [[nodiscard]] bool Contient(const QString& sujet) const;
  /// Where a text browser finds a page.
  [[nodiscard]] static QUrl Adresse(const QString& sujet);
  /// True for the address of something that the help file holds.
  [[nodiscard]] static bool EstDedans(const QUrl& adresse);
  /// The topic of such an address.
  [[nodiscard]] static QString Sujet(const QUrl& adresse);
  /// The names of a page's paragraphs: those of the controls that they are about, or of what
  /// another page links to.
  [[nodiscard]] static QStringList Ancres(const QString& sujet);
  /// True if a page has a paragraph of that name.
  [[nodiscard]] static bool ContientAncre(const QString& sujet, const QString& ancre);
  /// A page's source.
  [[nodiscard]] static QString Html(const QString& sujet);

 private:
  explicit FichierAide(QByteArray octets);
  [[nodiscard]] bool Inscrit();
  [[nodiscard]] bool LitSommaire();

  const QByteArray octets_;  // the registered resource reads from it
  bool inscrit_ = false;
  std::vector<ChapitreAide> sommaire_;
};

}  // namespace gastrelle
