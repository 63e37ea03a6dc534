#include "fuzz/Parcours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <stdexcept>
#include <tuple>

#include "data/Courses.h"
#include "data/EspaceMort.h"
#include "data/Limites.h"
#include "data/Main.h"
#include "data/ProceduresFichiers.h"
#include "data/Texte1252.h"
#include "doublures/ImprimanteEssai.h"
#include "doublures/ServicesEssai.h"
#include "favoris/CatalogueFavoris.h"
#include "fiches/CatalogueFiches.h"
#include "fromages/CatalogueFromages.h"
#include "fuzz/DisqueMemoire.h"
#include "fuzz/DossierReel.h"
#include "fuzz/Entree.h"
#include "listes/Notes.h"
#include "maintenance/Nettoyage.h"
#include "maintenance/Remplacement.h"
#include "maintenance/Sauvegarde.h"
#include "recettes/LectureRecettes.h"
#include "recherche/Recherche.h"
#include "sortie/Export.h"
#include "vins/CatalogueMillesimes.h"
#include "vins/CatalogueVins.h"
#include "vins/VinsEssai.h"

namespace gastrelle::essai {
namespace {

void Verifie(bool condition, const char* sinon) {
  if (!condition) {
    throw std::logic_error(sinon);
  }
}

class Vie {
 public:
  Vie(AccesFichiers& disque, std::string_view dossier)
      : module_{
            {disque, messages_, pointeur_, horloge_, association_, son_, processus_, imprimantes_},
            Chemins(Convention::posix, dossier)} {}

  [[nodiscard]] Module1& module() { return module_; }

  /// `gueritDisque` runs before what the next start has to find whole.
  Bilan Va(const std::function<void()>& gueritDisque) {
    try {
      Essaie([&] { Main(module_, false, [&] { bilan_.cadre = true; }); });
      if (bilan_.cadre) {
        Listes();
        Recettes();
        Fromages();
        Fiches(fichiersMenus, bilan_.menus);
        Fiches(fichiersTrucs, bilan_.trucs);
        Millesimes();
        Vins();
        Cave();
        Favoris();
        ChangeLesVins();
        ChangeLesFavoris();
        Exporte();
        Cherche();
        gueritDisque();
        Notes();
        Courses();
        Essaie([&] { static_cast<void>(MesureRecettes(module_)); });
        Essaie([&] { static_cast<void>(OuvreFichiersRecettes(module_, true)); });
        bilan_.copie = CopieSecurite(module_);
        Entretient();
      }
    } catch (const FinDuProgramme& fin) {
      bilan_.fin = fin.statut;
    }
    VerifieMessages();
    return std::move(bilan_);
  }

 private:
  template <class Etape>
  bool Essaie(Etape&& etape) {
    try {
      etape();
      return true;
    } catch (const ErreurExecution&) {
      ++bilan_.pannes;
      return false;
    }
  }

  void Listes() {
    Essaie([&] { bilan_.familles = ListeFamilles(module_); });
    Essaie([&] { bilan_.recettes = ToutesRecettes(module_); });
    Trie(bilan_.recettes);
    for (const std::int32_t famille : Numeros(bilan_.familles)) {
      Essaie([&] {
        const Liste recettes = RecettesDeFamille(module_, famille);
        Verifie(recettes.size() <= static_cast<std::size_t>(module_.bufRecette.nbActifs()),
                "plus de recettes listées que comptées");
        for (const EntreeListe& recette : recettes) {
          Essaie([&] { static_cast<void>(LitRecette(module_, recette.numero)); });
        }
      });
    }
  }

  /// The order of a list, and the place of each of its texts in it.
  static void Trie(Liste liste) {
    TrieFrancais(liste);
    for (std::size_t i = 1; i < liste.size(); ++i) {
      Verifie(CompareFrancais(liste[i - 1].texte, liste[i].texte) <= 0, "une liste en désordre");
      Verifie(PlaceFrancaise(liste, 0, liste[i].texte) > i, "une place avant un texte égal");
    }
  }

  /// The numbers of a list, and some that no list gives.
  static std::vector<std::int32_t> Numeros(const Liste& liste) {
    using Bornes = std::numeric_limits<std::int32_t>;
    std::vector<std::int32_t> numeros{Bornes::min(), -1, 0, 1, 2, 3, Bornes::max()};
    const std::vector<std::int32_t> siens = NumerosSeuls(liste);
    numeros.insert(numeros.end(), siens.begin(), siens.end());
    return numeros;
  }

  static std::vector<std::int32_t> NumerosSeuls(const Liste& liste) {
    std::vector<std::int32_t> numeros;
    for (const EntreeListe& entree : liste) {
      numeros.push_back(entree.numero);
    }
    return numeros;
  }

  void Recettes() {
    for (const EntreeListe& recette : bilan_.recettes) {
      Essaie([&] {
        const RecetteLue lue = LitRecette(module_, recette.numero);
        Verifie(lue.texte.size() <= static_cast<std::size_t>(limiteTexte),
                "un texte plus long que sa limite");
        Verifie(lue.image.empty() || !lue.imagePerdue, "une image trouvée et perdue");
        bilan_.textes.push_back(lue.texte);
        if (!lue.image.empty()) {
          bilan_.images.push_back(lue.image);
        }
      });
    }
    std::vector<std::int32_t> autres = Numeros({});
    Essaie([&] {
      const std::int32_t suivant = module_.bufRecette.ProchainNumero();
      autres.insert(autres.end(), {suivant - 2, suivant - 1, suivant, suivant + 1});
    });
    for (const std::int32_t numero : autres) {
      Essaie([&] { static_cast<void>(LitRecette(module_, numero)); });
    }
  }

  void Fromages() {
    Lus& lus = bilan_.fromages;
    Essaie([&] {
      lus.liste = ListeFromages(module_);
      VerifieListe(lus.liste, module_.bufFromage);
    });
    LitTout(lus, [&](std::int32_t numero) {
      VueFromage lu = LitFromage(module_, numero);
      Verifie(lu.region.size() <= std::size_t{limiteRegionFromage}, "une région trop longue");
      return std::move(lu.notes);
    });
    for (std::int16_t lait = -1; lait <= std::ssize(laitNoms); ++lait) {
      Essaie([&] {
        const auto avant = Code(module_.bufFromage.courant());
        const Liste duLait = FromagesAuLait(module_, lait);
        Verifie(duLait.size() <= static_cast<std::size_t>(module_.bufFromage.nbActifs()),
                "plus de fromages d'un lait que de fromages");
        Verifie(Code(module_.bufFromage.courant()) == avant, "un tri qui change le fromage lu");
      });
    }
  }

  void Fiches(const FichiersFiches& fichiers, Lus& lus) {
    Essaie([&] {
      lus.liste = ListeFiches(module_, fichiers);
      VerifieListe(lus.liste, module_.*fichiers.tampon);
    });
    LitTout(lus, [&](std::int32_t numero) {
      std::string texte = LitFiche(module_, fichiers, numero);
      Verifie(texte.size() <= std::size_t{limiteTexte}, "un texte plus long que sa limite");
      return texte;
    });
  }

  void Millesimes() {
    for (std::size_t cru = 0; cru < crus.size(); ++cru) {
      Essaie([&] {
        const std::vector<std::int16_t> lus = DegresDuCru(module_, cru);
        Verifie(std::ssize(lus) == NombreAnnees(module_), "plus ou moins de degrés que d'années");
        Verifie(std::all_of(lus.begin(), lus.end(), EstUnDegre), "un degré hors de l'échelle");
      });
    }
    for (const std::int32_t numero : Numeros({})) {
      Essaie([&] { static_cast<void>(LitAnnee(module_, numero)); });
    }
  }

  void Vins() {
    Essaie([&] {
      bilan_.regions = ListeRegions(module_);
      Verifie(bilan_.regions.size() <= static_cast<std::size_t>(module_.bufRegion.nbActifs()),
              "plus de régions listées que comptées");
    });
    Lus& lus = bilan_.vins;
    Essaie([&] {
      lus.liste = ListeVins(module_);
      VerifieListe(lus.liste, module_.bufVin);
    });
    LitTout(lus, [&](std::int32_t numero) {
      const VinLu lu = LitVin(module_, numero);
      const std::int32_t sienne = LitRegionDuVin(module_, numero);
      Verifie(lu.region.size() <= RecRegion().nomRegion.largeur, "une région trop longue");
      Verifie(sienne >= 1, "un vin lu avec une région sans numéro");
      return lu.notes + lu.notesCave;
    });
    for (const std::int32_t region : Numeros(bilan_.regions)) {
      Essaie([&] {
        const Liste vins = VinsDeLaRegion(module_, region);
        Verifie(vins.size() <= static_cast<std::size_t>(module_.bufVin.nbActifs()),
                "plus de vins d'une région que de vins");
      });
    }
  }

  void Cave() {
    Essaie([&] {
      Liste enCave = VinsEnCave(module_);
      TrieFrancais(enCave);
      bilan_.cave = LignesDuRapport(module_, enCave);
      Verifie(enCave.empty() ? bilan_.cave.size() == 1
                             : bilan_.cave.back().starts_with("... Total .......... "),
              "un rapport qui ne finit pas par son total");
    });
  }

  /// A wine comes, changes and goes with its region; then those of the input change and go.
  void ChangeLesVins() {
    const std::string longues(40, 'n');
    bilan_.vinPasse = Essaie([&] {
      const std::int32_t region = AjouteRegion(module_, "Passage");
      RenommeRegion(module_, region, "Halte");
      const std::int32_t vin = AjouteVin(module_, {"Passant", region, "Une note."});
      Verifie(LitVin(module_, vin).region == "Halte", "un vin ajouté dans une autre région");
      ChangeVin(module_, vin, {"Passante", region, longues});
      Verifie(LitVin(module_, vin).notes == longues, "une note qui se relit autrement");
      SupprimeRegion(module_, region);
      LitRegionDuVin(module_, vin);
      Verifie(module_.bufVin.courant().actif == supprime, "un vin qui survit à sa région");
    });
    for (const EntreeListe& vin : bilan_.vins.liste) {
      Essaie([&] {
        ChangeUnVin(vin, longues);
        ++bilan_.vinsChanges;
      });
    }
    for (const EntreeListe& region : bilan_.regions) {
      Essaie([&] { RenommeRegion(module_, region.numero, region.texte); });
    }
    if (!bilan_.regions.empty()) {
      Essaie([&] { SupprimeRegion(module_, bilan_.regions.front().numero); });
    }
  }

  /// Its note, its bottles and the note on them, short and then longer, none at last; then it goes.
  void ChangeUnVin(const EntreeListe& vin, const std::string& longues) {
    const std::int32_t region = LitRegionDuVin(module_, vin.numero);
    const RecVin& lu = module_.bufVin.courant();
    // A text far behind the end of its pool would make a file of that length.
    if (std::max(lu.posTexte, lu.posNotesCave) > DisqueMemoire::capacite) {
      throw ErreurExecution(Panne::disquePlein);
    }
    const std::string notesCave = longues + vin.texte;
    Essaie([&] { ChangeVin(module_, vin.numero, {vin.texte, region, "n"}); });
    Essaie([&] { ChangeVin(module_, vin.numero, {vin.texte, region, longues}); });
    Essaie([&] { EcritCave(module_, vin.numero, Bouteilles{1, 2, 3}, "c"); });
    Essaie([&] { EcritCave(module_, vin.numero, BouteillesCourantes(module_), notesCave); });
    Essaie([&] { EcritCave(module_, vin.numero, Bouteilles{}, ""); });
    SupprimeVin(module_, vin.numero);
  }

  void Favoris() {
    Essaie([&] {
      bilan_.categories = ListeCategories(module_);
      Verifie(bilan_.categories.size() <= static_cast<std::size_t>(module_.bufCategorie.nbActifs()),
              "plus de catégories listées que comptées");
    });
    Lus& lus = bilan_.favoris;
    Essaie([&] {
      lus.liste = ListeFavoris(module_);
      VerifieListe(lus.liste, module_.bufFavori);
    });
    LitTout(lus, [&](std::int32_t numero) {
      const TextesFavori textes = LitFavori(module_, numero).textes;
      const RecFavori& courant = module_.bufFavori.courant();
      Verifie(textes.adresse.size() <= std::size_t{limiteAdressePostale} &&
                  textes.notes.size() <= std::size_t{limiteTexte},
              "un texte plus long que sa limite");
      Verifie(textes.email == RogneDroite(courant.email.brut()) &&
                  textes.siteWeb == RogneDroite(courant.siteWeb.brut()),
              "une adresse autre que celle de la fiche de travail");
      return textes.adresse + textes.notes;
    });
    for (const std::int32_t categorie : Numeros(bilan_.categories)) {
      Essaie([&] {
        const auto avant = Code(module_.bufFavori.courant());
        const Liste favoris = FavorisDeLaCategorie(module_, categorie);
        Verifie(favoris.size() <= static_cast<std::size_t>(module_.bufFavori.nbActifs()),
                "plus de favoris d'une catégorie que de favoris");
        Verifie(Code(module_.bufFavori.courant()) == avant, "un tri qui change le favori lu");
      });
    }
  }

  /// A favourite comes, changes and goes with its category if the wines' file is long enough; then
  /// those of the input change and go.
  void ChangeLesFavoris() {
    const std::string longues(40, 'n');
    bilan_.favoriPasse = Essaie([&] {
      const std::int32_t categorie = module_.bufCategorie.ProchainNumero();
      AjouteCategorie(module_, "Passage");
      RenommeCategorie(module_, categorie, "Halte");
      const std::int32_t favori = AjouteFavori(
          module_, {"Passant", categorie, {"Ici.", "1", "2", "a@b", "b", "Une note."}});
      Verifie(LitFavori(module_, favori).categorie == "Halte", "un favori d'une autre catégorie");
      ChangeFavori(module_, favori, {"Passante", categorie, {longues, "", "", "", "", longues}});
      const TextesFavori lus = LitFavori(module_, favori).textes;
      Verifie(lus.adresse == longues && lus.notes == longues, "un texte qui se relit autrement");
      const double borne =
          std::nearbyint(static_cast<double>(Ouvert(module_.Place(Donnees::GLV2)).Longueur()) /
                         longueurEnregistrement<RecFavori>);
      SupprimeCategorie(module_, categorie);
      module_.bufFavori.LitCourant(favori);
      Verifie((module_.bufFavori.courant().actif == supprime) == (favori <= borne),
              "une suppression qui va plus ou moins loin que les vins");
    });
    for (const EntreeListe& favori : bilan_.favoris.liste) {
      Essaie([&] {
        ChangeUnFavori(favori, longues);
        ++bilan_.favorisChanges;
      });
    }
    for (const EntreeListe& categorie : bilan_.categories) {
      Essaie([&] { RenommeCategorie(module_, categorie.numero, categorie.texte); });
    }
    if (!bilan_.categories.empty()) {
      Essaie([&] { SupprimeCategorie(module_, bilan_.categories.front().numero); });
    }
  }

  /// Its address and its notes, short and then longer, one after the other, none at last; then it
  /// goes.
  void ChangeUnFavori(const EntreeListe& favori, const std::string& longues) {
    const std::int32_t numero = favori.numero;
    module_.bufFavori.LitCourant(numero);
    const RecFavori& lu = module_.bufFavori.courant();
    // A text far behind the end of its pool would make a file of that length.
    if (std::max(lu.posAdresse, lu.posTexte) > DisqueMemoire::capacite) {
      throw ErreurExecution(Panne::disquePlein);
    }
    const std::int32_t categorie = lu.idCategorie;
    for (const TextesFavori& textes :
         {TextesFavori{"a", "1", "2", "@", "w", "n"}, TextesFavori{longues, "", "", "", "", "n"},
          TextesFavori{"a", "", "", "", "", longues}, TextesFavori{}}) {
      Essaie([&] { ChangeFavori(module_, numero, {favori.texte, categorie, textes}); });
    }
    SupprimeFavori(module_, numero);
  }

  /// The header counts what the list holds, and every entry bears the number of a record.
  template <class T>
  static void VerifieListe(const Liste& liste, FichierEnregistrements<T>& fichier) {
    Trie(liste);
    Verifie(liste.size() == static_cast<std::size_t>(fichier.nbActifs()),
            "une liste d'un autre nombre que l'en-tête");
    for (const EntreeListe& entree : liste) {
      Verifie(entree.numero >= 2 && entree.numero <= fichier.Nombre(), "une entrée sans fiche");
    }
  }

  /// Reads each entry of a list, then numbers that no list gives.
  template <class Lecture>
  void LitTout(Lus& lus, Lecture&& lit) {
    for (const EntreeListe& entree : lus.liste) {
      Essaie([&] { lus.textes.push_back(lit(entree.numero)); });
    }
    for (const std::int32_t numero : Numeros({})) {
      Essaie([&] { static_cast<void>(lit(numero)); });
    }
  }

  /// Every family, whatever became of them; nothing of it fails but by a False answer.
  void Exporte() {
    Liste familles;
    Essaie([&] { familles = FamillesAExporter(module_); });
    const auto famille = Code(module_.bufFamille.courant());
    const auto recette = Code(module_.bufRecette.courant());
    static_cast<void>(EcritExport(module_, Numeros(familles), [] {}));
    Verifie(Code(module_.bufFamille.courant()) == famille &&
                Code(module_.bufRecette.courant()) == recette,
            "un export qui change une fiche de travail");
    bilan_.exporte = EcritExport(module_, NumerosSeuls(familles), [] {});
  }

  void Cherche() {
    const auto deTravail = [&] {
      return std::tuple{Code(module_.bufRecette.courant()), Code(module_.bufMenu.courant()),
                        Code(module_.bufTruc.courant())};
    };
    const auto avant = deTravail();
    for (const CatalogueCherche& catalogue : cataloguesCherches) {
      for (const std::string_view quoi : {"o", "un velout", "\r\n"}) {
        Essaie([&] { CherchePartout(catalogue, quoi); });
      }
    }
    Verifie(deTravail() == avant, "une recherche qui change une fiche de travail");
  }

  /// The first hits, one after the other: each one holds what is looked for.
  void CherchePartout(const CatalogueCherche& catalogue, std::string_view quoi) {
    constexpr int assez = 5;
    Recherche recherche(module_, catalogue, quoi);
    std::int32_t derniere = 1;
    for (int i = 0; i < assez; ++i) {
      const std::optional<Occurrence> trouvee = recherche.Suivante();
      if (!trouvee) {
        return;
      }
      Verifie(trouvee->numero > derniere, "une recherche qui recule");
      const std::string& ou = trouvee->dansTitre ? trouvee->titre : trouvee->texte;
      Verifie(Majuscules(ou).find(Majuscules(quoi)) != std::string::npos,
              "une fiche trouvée sans ce qu'on y cherche");
      derniere = trouvee->numero;
      bilan_.trouvees.emplace_back(Rogne(trouvee->titre));
      if (recherche.EstFinie()) {
        return;
      }
    }
  }

  /// What is read is what the next start will read. Where nothing could be read nothing stays.
  void Notes() {
    Essaie([&] { bilan_.notes = LitNotes(module_); });
    const std::string& lues = bilan_.notes;
    Verifie(!lues.starts_with(CRLF), "des notes qui commencent par une ligne vide");
    EcritNotes(module_, lues);
    Verifie(
        Essaie([&] { Verifie(LitNotes(module_) == lues, "des notes changées par leur écriture"); }),
        "des notes illisibles après leur écriture");
  }

  /// What was read at the start is what the next start will read.
  void Courses() {
    const std::array<std::string, nombreRayons> avant = module_.texteRayon;
    for (const std::string& texte : avant) {
      bilan_.rayons += texte.empty() ? 0 : 1;
    }
    SauveCourses(module_);
    Verifie(Essaie([&] { ChargeCourses(module_); }), "des rayons illisibles après leur écriture");
    Verifie(module_.texteRayon == avant, "un rayon changé par son écriture");
  }

  /// The recipes as the next start would open them: cleaned, left alone, as the factory had them.
  /// Where one of these ends the program, those behind it aren't tried.
  void Entretient() {
    bilan_.nettoye =
        OuvreFichiersRecettes(module_, true) && Essaie([&] {
          const std::int16_t nettoyees = NettoieRecettes(module_);
          Verifie(nettoyees == module_.bufRecette.nbActifs(), "un nettoyage qui compte autrement");
          Verifie(MesureRecettes(module_).gain() == 0, "un nettoyage qui laisse des pertes");
        });
    bilan_.videe = Remplace(FabriqueUneRecette);
    Verifie(!bilan_.videe || module_.bufRecette.nbActifs() == 1, "plus d'une recette qui reste");
    bilan_.restauree = bilan_.videe && Remplace(FabriqueOrigines);
  }

  /// False: the program would have ended, saying so.
  bool Remplace(FabriqueRecettes fabrique) {
    try {
      RemplaceRecettes(module_, fabrique);
      return true;
    } catch (const FinDuProgramme&) {
      Verifie(messages_.vus.back().texte == "Erreur fatale. Impossibilité de continuer."_1252,
              "une fin sans son message");
      messages_.vus.pop_back();
      return false;
    }
  }

  /// Every message is one of those about a file; behind the last one the program may say that it
  /// ends.
  void VerifieMessages() {
    if (bilan_.fin && messages_.vus.size() > 1 &&
        messages_.vus.back().texte == "Erreur fatale. Impossibilité de continuer."_1252) {
      messages_.vus.pop_back();
    }
    constexpr std::array<std::string_view, 2> fins{
        " non trouvé ou erreur disque."_1252, " non trouvé ou incompatible ou erreur disque."_1252};
    for (const MessageVu& vu : messages_.vus) {
      std::string texte = vu.texte;
      std::replace(texte.begin(), texte.end(), '\r', ' ');
      texte.erase(std::remove(texte.begin(), texte.end(), '\n'), texte.end());
      Verifie(texte.starts_with("Fichier " + module_.chemins.De("GL")) &&
                  std::any_of(fins.begin(), fins.end(),
                              [&](std::string_view fin) { return texte.ends_with(fin); }),
              "un message inconnu");
      bilan_.messages.push_back(std::move(texte));
    }
  }

  MessagesEssai messages_;
  PointeurEssai pointeur_;
  HorlogeEssai horloge_;
  AssociationEssai association_;
  SonEssai son_;
  ProcessusEssai processus_;
  ImprimantesEssai imprimantes_;
  Module1 module_;
  Bilan bilan_;
};

}  // namespace

namespace {

Bilan ParcourtEnMemoire(std::string_view entree) {
  DisqueMemoire disque;
  Vie vie(disque, dossierMemoire);
  const Suite suite = PoseFichiers(entree, vie.module());
  if ((suite.choix & avecImages) != 0) {
    disque.PoseAilleurs(imageAilleurs);
  }
  disque.EchoueALAppel(suite.panne);
  return vie.Va([&] { disque.EchoueALAppel(0); });
}

Bilan ParcourtSurDisque(std::string_view entree) {
  DossierReel dossier;
  Vie vie(dossier.disque(), dossier.chemin());
  dossier.Pose(PoseFichiers(entree, vie.module()).intrus);
  Bilan bilan = vie.Va([] {});
  dossier.Verifie();
  return bilan;
}

}  // namespace

Bilan Parcourt(std::string_view entree) {
  return VaSurDisque(entree) ? ParcourtSurDisque(entree) : ParcourtEnMemoire(entree);
}

}  // namespace gastrelle::essai
