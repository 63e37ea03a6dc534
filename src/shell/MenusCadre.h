// The frame's menus and toolbar as tables: names, captions, keys, icons, what a button stands for.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace gastrelle {

enum class Genre : std::uint8_t {
  menu,        ///< a menu of the bar
  entree,      ///< an entry of the menu above it
  sousMenu,    ///< a submenu of the menu above it
  sousEntree,  ///< an entry of the submenu above it
  separateur,  ///< a line in the menu above it
};

struct EntreeMenu {
  Genre genre;
  const char* nom;              ///< objectName
  const char16_t* titre = u"";  ///< "&" marks the access key
  const char* touche = "";      ///< shortcut, in portable text; others behind it after "; "
  const char* icone = "";       ///< resource name
  bool cochable = false;
};

struct BoutonBarre {
  const char* cle;  ///< objectName is "tbToolBar." and this
  const char16_t* infobulle;
  const char* entree;  ///< the menu entry whose click this is
  const char* icone;
  bool debutGroupe = false;
};

std::span<const EntreeMenu> EntreesMenus();
std::span<const BoutonBarre> BarreOutils();
/// Resource name of the picture on the button that stands for an entry; empty if none does.
const char* ImageDuBouton(std::string_view entree);

}  // namespace gastrelle
