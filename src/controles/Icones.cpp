#include "controles/Icones.h"

#include <algorithm>
#include <array>

#include <QFile>
#include <QIconEngine>
#include <QPainter>

namespace gastrelle {
namespace {

constexpr std::array tailles{16, 24, 32, 48, 64, 96, plusGrandeIcone, plusGrandDessin};

QString Fichier(const QString& nom, int taille) {
  return QStringLiteral(":/icones/%1-%2.png").arg(nom).arg(taille);
}

/// Reads a picture when it is drawn first, and only in the size that is drawn:
/// a toolkit icon would unpack every size of every button at the start.
class MoteurIcone final : public QIconEngine {
 public:
  MoteurIcone(QString nom, int auPlus) : nom_(std::move(nom)), auPlus_(auPlus) {}

  [[nodiscard]] QIconEngine* clone() const override { return new MoteurIcone(*this); }
  [[nodiscard]] QString key() const override { return QStringLiteral("MoteurIcone"); }
  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*etat*/) override {
    QList<QSize> presentes;
    for (const int taille : tailles) {
      if (taille <= auPlus_ && QFile::exists(Fichier(nom_, taille))) {
        presentes.append(QSize(taille, taille));
      }
    }
    return presentes;
  }

  QSize actualSize(const QSize& voulue, QIcon::Mode mode, QIcon::State etat) override {
    return Lue(voulue).actualSize(voulue, mode, etat);
  }
  QPixmap pixmap(const QSize& voulue, QIcon::Mode mode, QIcon::State etat) override {
    return Lue(voulue).pixmap(voulue, 1.0, mode, etat);
  }
  void paint(QPainter* peintre, const QRect& ou, QIcon::Mode mode, QIcon::State etat) override {
    const qreal densite = peintre->device()->devicePixelRatio();
    QPixmap image = pixmap((QSizeF(ou.size()) * densite).toSize(), mode, etat);
    image.setDevicePixelRatio(densite);
    peintre->drawPixmap(ou, image);
  }

 private:
  /// The icon with the picture for that size in it: the smallest one that is
  /// large enough, or the largest there is.
  const QIcon& Lue(const QSize& voulue) {
    const int cote = std::max(voulue.width(), voulue.height());
    const auto presente = [&](int taille) { return QFile::exists(Fichier(nom_, taille)); };
    const auto assez = std::find_if(tailles.begin(), tailles.end(),
                                    [&](int taille) { return taille >= cote && presente(taille); });
    const int taille =
        assez != tailles.end() ? *assez : *std::find_if(tailles.rbegin(), tailles.rend(), presente);
    if (!lues_.contains(taille)) {
      lues_.append(taille);
      icone_.addPixmap(QPixmap(Fichier(nom_, taille)));
    }
    return icone_;
  }

  QString nom_;
  int auPlus_;  ///< largest of the sizes that are offered
  QList<int> lues_;
  QIcon icone_;
};

}  // namespace

QIcon IconeDe(const QString& nom, int auPlus) {
  const bool presente = std::any_of(tailles.begin(), tailles.end(), [&](int taille) {
    return QFile::exists(Fichier(nom, taille));
  });
  return presente ? QIcon(new MoteurIcone(nom, auPlus)) : QIcon();
}

}  // namespace gastrelle
