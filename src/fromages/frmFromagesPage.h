// What the four pages of the cheeses window that show or take one cheese have in common: the rows
// of its fields.
#pragma once

#include <initializer_list>

#include "controles/PageOnglet.h"

namespace gastrelle {

/// The controls of a page, field by field.
struct ChampsFromage {
  QWidget* nom;
  QWidget* region;
  QWidget* lait;
  QWidget* premierMois;
  QWidget* dernierMois;
  QWidget* notes;
};

class frmFromagesPage : public PageOnglet {
 protected:
  using PageOnglet::PageOnglet;

  /// Puts the fields on the page, each beside its caption; the notes take the room that is left.
  void Dispose(const ChampsFromage& champs);

 private:
  /// A row whose controls keep their own width.
  void RangCourt(QLabel* legende, std::initializer_list<QWidget*> controles);
};

}  // namespace gastrelle
