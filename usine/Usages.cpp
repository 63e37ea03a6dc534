#include "usine/Usages.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "usine/Place.h"

namespace gastrelle::usine {
namespace {

constexpr std::string_view celsius = " \xB0\x43";  // " °C"

/// The word that begins at a place, in capitals; empty inside a word.
std::string MotQuiCommence(const Place& p) {
  if (EstLettre(p.avant()) || !EstLettre(p.c())) {
    return {};
  }
  const std::string_view suite = p.suite();
  const auto fin = std::find_if_not(suite.begin(), suite.end(), EstLettre);
  return Majuscules(suite.substr(0, static_cast<std::size_t>(fin - suite.begin())));
}

template <std::size_t N>
bool EstParmi(std::string_view mot, const std::array<std::string_view, N>& mots) {
  return std::find(mots.begin(), mots.end(), mot) != mots.end();
}

/// A whole number that begins at a place, and what follows it.
struct Chiffres {
  int valeur = -1;  ///< -1: none begins here
  std::string_view suite;
};

Chiffres ChiffresQuiCommencent(const Place& p) {
  Chiffres lus;
  if (!EstChiffre(p.avant()) && EstChiffre(p.a(0))) {
    const std::string_view reste = p.suite();
    const char* fin = std::from_chars(reste.data(), reste.data() + reste.size(), lus.valeur).ptr;
    lus.suite = reste.substr(static_cast<std::size_t>(fin - reste.data()));
  }
  return lus;
}

/// The sentence that a place is in, up to the place.
std::string_view DebutDePhrase(const Place& p) {
  const std::string_view avant = p.texte.substr(0, p.i);
  for (std::size_t i = avant.size(); i > 0; --i) {
    const bool abrege = avant.substr(0, i).ends_with("(th.");
    if (Parmi(avant[i - 1], "!?\n") ||
        (avant[i - 1] == '.' && !abrege && Parmi(p.texte[i], " \n"))) {
      return avant.substr(i);
    }
  }
  return avant;
}

bool EstDureeEnToutesLettres(const Place& p) {
  return p.c() == ' ' && EstChiffre(p.avant()) &&
         (p.Commence(" minute") || p.Commence(" heure") || p.Commence(" seconde"));
}

/// "min", and no longer word.
bool EstEnMinutes(std::string_view suite) {
  constexpr std::string_view minutes = " min";
  return suite.starts_with(minutes) && !EstLettre(Place{suite, 0}.a(minutes.size()));
}

/// "1 h 30 min" for "1 h 30".
bool EstMinutesDerriereHeures(const Place& p) {
  const Chiffres heures = ChiffresQuiCommencent(p);
  if (!heures.suite.starts_with(" h ")) {
    return false;
  }
  const Chiffres minutes = ChiffresQuiCommencent({heures.suite, 3});
  return minutes.valeur >= 0 && EstEnMinutes(minutes.suite);
}

bool EstAdresseAuLecteur(const Place& p) {
  constexpr std::array<std::string_view, 4> noms{"VOUS", "VOTRE", "VOS", "V\xD4TRE"};
  constexpr std::array<std::string_view, 11> autres{"CHEZ", "ASSEZ", "NEZ",       "REZ",
                                                    "LEZ",  "FOREZ", "TROPEZ",    "RODEZ",
                                                    "SUEZ", "CREZ",  "DOUARNENEZ"};
  const std::string mot = MotQuiCommence(p);
  const bool rendezVous = p.texte.substr(0, p.i).ends_with("endez-") || p.Commence("rendez-vous") ||
                          p.Commence("Rendez-vous");
  return !rendezVous &&
         (EstParmi(mot, noms) || (mot.size() > 2 && mot.ends_with("EZ") && !EstParmi(mot, autres)));
}

/// "30 x 40 cm", "30x40", "3 cm x 4 cm".
bool EstCroixEnLettre(const Place& p) {
  return p.c() == 'x' && !EstLettre(p.avant()) && EstChiffre(p.a(p.apres() == ' ' ? 2 : 1));
}

bool EstMoinsEnTraitDUnion(const Place& p) {
  return p.c() == '-' && Parmi(p.avant(), " (\n") && EstChiffre(p.apres());
}

/// A range of heats whose two ends are joined by a word: "16 ou 17 °C".
bool EstChaleurJointePar(const Place& p, std::string_view lien) {
  const Chiffres premier = ChiffresQuiCommencent(p);
  if (!premier.suite.starts_with(lien)) {
    return false;
  }
  const Chiffres second = ChiffresQuiCommencent({premier.suite, lien.size()});
  return second.suite.starts_with(celsius);
}

struct Graphie {
  std::string_view ecartee;  ///< as words begin, in capitals
  const char* raison;
  bool entiere = false;  ///< the last word ends there
};

constexpr std::array<Graphie, 12> graphies{{
    {"PAIN D'\xC9PICES", "« pain d'épice » attendu"},
    {"PAINS D'\xC9PICES", "« pains d'épice » attendu"},
    {"KOUGELHOPF", "« kouglof » attendu"},
    {"CANEL\xC9", "« cannelé » attendu"},
    {"DORADE", "« daurade » attendu"},
    {"TARTE FLAMB", "« flammekueche » attendu"},
    {"PAPIER SULF", "« papier cuisson » attendu"},
    {"CONCENTR\xC9 DE TOMATES", "« concentré de tomate » attendu"},
    {"STEAK FRITES", "« steak-frites » attendu"},
    {"VINAIGRE DE XERES", "« vinaigre de xérès » attendu"},
    {"TRIS", "« tries » attendu", true},
    {"GRANIT", "« granite » attendu", true},
}};

const Graphie* GraphieEcartee(const Place& p) {
  if (EstLettre(p.avant()) || !EstLettre(p.c())) {
    return nullptr;
  }
  constexpr std::size_t laPlusLongue = 24;
  const std::string debut = Majuscules(p.suite().substr(0, laPlusLongue));
  const auto place = std::find_if(graphies.begin(), graphies.end(), [&](const Graphie& g) {
    return debut.starts_with(g.ecartee) && (!g.entiere || !EstLettre(p.a(g.ecartee.size())));
  });
  return place == graphies.end() ? nullptr : &*place;
}

/// "dix-huit ans": the last word before the unit is a number.
bool EstNombreEnLettresDevant(const Place& p) {
  constexpr std::array<std::string_view, 20> nombres{
      "DEUX",  "TROIS", "QUATRE", "CINQ",     "SIX",       "SEPT",     "HUIT",
      "NEUF",  "DIX",   "ONZE",   "DOUZE",    "TREIZE",    "QUATORZE", "QUINZE",
      "SEIZE", "VINGT", "TRENTE", "QUARANTE", "CINQUANTE", "SOIXANTE"};
  constexpr std::array<std::string_view, 4> grands{"CENT", "CENTS", "MILLE", "VINGTS"};
  if (!p.Commence(" ans") || EstLettre(p.a(4))) {
    return false;
  }
  std::size_t debut = p.i;
  while (debut > 0 && EstLettre(p.texte[debut - 1])) {
    --debut;
  }
  const std::string mot = Majuscules(p.texte.substr(debut, p.i - debut));
  return EstParmi(mot, nombres) || EstParmi(mot, grands);
}

bool EstHectares(const Place& p) {
  return MotQuiCommence(p) == "HECTARES" && !p.texte.substr(0, p.i).ends_with("d'");
}

/// The mark of an oven's dial: a thirtieth of the heat, or the two marks around it.
std::string Thermostat(int degres) {
  constexpr int parMarque = 30;
  const int marque = degres / parMarque;
  return std::to_string(marque) + (degres % parMarque == 0 ? "" : "-" + std::to_string(marque + 1));
}

/// Heats that a cook reads on a thermometer, not on the oven. In capitals.
bool EstAuThermometre(std::string_view phrase) {
  constexpr std::array<std::string_view, 11> milieux{"HUILE", "FRITURE", "GRAISSE", "BAIN",
                                                     "SUCRE", "SIROP",   "MIEL",    "CARAMEL",
                                                     "SONDE", "C\x8CUR", "THERMOM"};
  return std::any_of(milieux.begin(), milieux.end(), [&](std::string_view milieu) {
    return phrase.find(milieu) != std::string_view::npos;
  });
}

/// What a sentence says behind the last oven that it names; nothing if it names none.
std::optional<std::string> DerriereLeFour(const std::string& phrase) {
  constexpr std::array<std::string_view, 3> fours{" FOUR ", " FOUR, ", "NFOURNER "};
  std::size_t fin = 0;
  for (const std::string_view four : fours) {
    const std::size_t place = phrase.rfind(four);
    fin = place == std::string::npos ? fin : std::max(fin, place + four.size());
  }
  return fin == 0 ? std::nullopt : std::optional(phrase.substr(fin));
}

/// A heat of 80 to 300 degrees that no thermostat follows.
bool EstSansThermostat(const Place& p) {
  constexpr int leMoins = 80;
  constexpr int lePlus = 300;
  const Chiffres degres = ChiffresQuiCommencent(p);
  return degres.valeur >= leMoins && degres.valeur <= lePlus && degres.suite.starts_with(celsius) &&
         !degres.suite.substr(celsius.size()).starts_with(" (th. ");
}

bool EstFourSansThermostat(const Place& p) {
  if (!EstSansThermostat(p)) {
    return false;
  }
  const std::string phrase = Majuscules(DebutDePhrase(p));
  const auto derriere = DerriereLeFour(phrase);
  return phrase.ends_with("BAISSER \xC0 ") || (derriere && !EstAuThermometre(*derriere));
}

/// Where one cooks step by step a heat is the oven's, unless the sentence names another medium;
/// jams and syrups end below 120 degrees.
bool EstChaleurSansThermostat(const Place& p) {
  constexpr int auMoinsDuFour = 120;
  return EstSansThermostat(p) && ChiffresQuiCommencent(p).valeur >= auMoinsDuFour &&
         !EstAuThermometre(Majuscules(DebutDePhrase(p)));
}

bool EstFauxThermostat(const Place& p) {
  const Chiffres degres = ChiffresQuiCommencent(p);
  if (degres.valeur < 0 || !degres.suite.starts_with(celsius)) {
    return false;
  }
  const std::string_view suite = degres.suite.substr(celsius.size());
  return suite.starts_with(" (th. ") &&
         !suite.starts_with(" (th. " + Thermostat(degres.valeur) + ")");
}

bool EstFaussePrecision(const Place& p) {
  constexpr int enGros = 10;
  constexpr int pas = 5;
  constexpr std::array<int, 2> exactes{12, 18};
  constexpr std::string_view jusqua = " \xE0 ";
  const Chiffres minutes = ChiffresQuiCommencent(p);
  const bool debut = minutes.suite.starts_with(jusqua) &&
                     EstEnMinutes(ChiffresQuiCommencent({minutes.suite, jusqua.size()}).suite);
  return minutes.valeur > enGros && minutes.valeur % pas != 0 &&
         (debut || EstEnMinutes(minutes.suite)) &&
         std::find(exactes.begin(), exactes.end(), minutes.valeur) == exactes.end();
}

bool EstPersilAutrementCompte(const Place& p) {
  constexpr int leBouquet = 10;
  const std::string_view avant = p.texte.substr(0, p.i);
  const int brins = ChiffresQuiCommencent({p.texte, 0}).valeur;
  return MotQuiCommence(p) == "PERSIL" && p.texte.find("bouquet garni") == std::string_view::npos &&
         !(avant.ends_with(" brins de ") && brins <= leBouquet) && !avant.ends_with("1 brin de ") &&
         !avant.ends_with("1 bouquet de ");
}

bool EstCremeIndecise(const Place& p) {
  constexpr std::string_view creme = "CR\xC8ME FRA\xCE\x43HE";
  constexpr std::string_view epaisse = " \xC9PAISSE";
  const std::string suite = Majuscules(p.suite().substr(0, creme.size() + epaisse.size()));
  return suite.starts_with(creme) && !suite.ends_with(epaisse);
}

bool EstSelVirgulePoivre(const Place& p) {
  constexpr std::string_view selPoivre = "SEL, POIVRE";
  return Majuscules(p.suite().substr(0, selPoivre.size())) == selPoivre;
}

struct Regle {
  unsigned portee;
  bool (*faute)(const Place&);
  const char* raison;
};

constexpr std::array<Regle, 16> regles{{
    {usages::phrase, EstDureeEnToutesLettres, "min, h ou s attendu après un chiffre"},
    {usages::phrase, EstMinutesDerriereHeures, "« 1 h 30 » attendu, sans min derrière les heures"},
    {usages::phrase, EstAdresseAuLecteur, "le lecteur n'est pas interpellé : infinitif attendu"},
    {usages::phrase, EstCroixEnLettre, "signe × attendu entre deux chiffres"},
    {usages::phrase, EstMoinsEnTraitDUnion, "tiret – attendu pour le signe moins"},
    {usages::phrase, [](const Place& p) { return EstChaleurJointePar(p, " ou "); },
     "deux températures ne se joignent pas par « ou »"},
    {usages::portrait, [](const Place& p) { return EstChaleurJointePar(p, " \xE0 "); },
     "trait d'union attendu entre deux températures de service"},
    {usages::vin, EstNombreEnLettresDevant, "âge en chiffres attendu"},
    {usages::vin, EstHectares, "ha attendu, derrière un chiffre"},
    {usages::cuisine, EstFourSansThermostat, "thermostat attendu derrière la chaleur du four"},
    {usages::fourneau, EstChaleurSansThermostat, "thermostat attendu derrière la chaleur du four"},
    {usages::cuisine, EstFauxThermostat, "thermostat faux, un trentième des degrés attendu"},
    {usages::recette, EstFaussePrecision,
     "au-dessus de 10 min, un multiple de 5 attendu (12 et 18 admis)"},
    {usages::ingredient, EstPersilAutrementCompte,
     "persil compté en brins, ou « 1 bouquet de persil plat »"},
    {usages::ingredient, EstCremeIndecise,
     "« crème fraîche épaisse » ou « crème liquide » attendu"},
    {usages::ingredient, EstSelVirgulePoivre, "« Sel et poivre » attendu"},
}};

}  // namespace

std::optional<Faute> FauteUsage(std::string_view texte, unsigned portees) {
  for (std::size_t i = 0; portees != 0 && i < texte.size(); ++i) {
    const Place place{texte, i};
    for (const Regle& regle : regles) {
      if ((regle.portee & portees) != 0 && regle.faute(place)) {
        return Faute{regle.raison, i};
      }
    }
    if (const Graphie* graphie = GraphieEcartee(place)) {
      return Faute{graphie->raison, i};
    }
  }
  return std::nullopt;
}

bool ExpliqueApresDeuxPoints(std::string_view texte) {
  return texte.find(" :") != std::string_view::npos ||
         texte.find("\xA0:") != std::string_view::npos;
}

}  // namespace gastrelle::usine
