// What a French reader writes for the characters that pages, word processors and telephones use and
// that the files don't hold. What the compatibility forms of Unicode say as well isn't told here.
#pragma once

#include <array>
#include <string_view>

namespace gastrelle {

/// The characters from `premier` to `dernier` are all written `texte`; empty: a picture, of which
/// nothing is left.
struct Ecriture {
  char32_t premier;
  char32_t dernier;
  std::u16string_view texte;
};

/// By ascending code.
inline constexpr std::array ecritures{
    Ecriture{0x000B, 0x000C, u"\n"},      // line and page breaks of word processors
    Ecriture{0x0085, 0x0085, u"\n"},      // next line
    Ecriture{0x0110, 0x0110, u"D"},       // letters with a stroke
    Ecriture{0x0111, 0x0111, u"d"},       //
    Ecriture{0x0126, 0x0126, u"H"},       //
    Ecriture{0x0127, 0x0127, u"h"},       //
    Ecriture{0x0131, 0x0131, u"i"},       // dotless i
    Ecriture{0x0141, 0x0141, u"L"},       //
    Ecriture{0x0142, 0x0142, u"l"},       //
    Ecriture{0x014A, 0x014A, u"N"},       // eng
    Ecriture{0x014B, 0x014B, u"n"},       //
    Ecriture{0x0166, 0x0166, u"T"},       //
    Ecriture{0x0167, 0x0167, u"t"},       //
    Ecriture{0x0237, 0x0237, u"j"},       // dotless j
    Ecriture{0x02B9, 0x02B9, u"'"},       // modifier primes and apostrophes
    Ecriture{0x02BA, 0x02BA, u"\""},      //
    Ecriture{0x02BB, 0x02BD, u"'"},       //
    Ecriture{0x02C8, 0x02C8, u"'"},       //
    Ecriture{0x02D7, 0x02D7, u"-"},       // modifier minus
    Ecriture{0x02DA, 0x02DA, u"°"},       // ring above, for a degree
    Ecriture{0x02DD, 0x02DD, u"\""},      // double acute, for a double prime
    Ecriture{0x02EE, 0x02EE, u"\""},      //
    Ecriture{0x03BC, 0x03BC, u"µ"},       // Greek mu, for micro
    Ecriture{0x05BE, 0x05BE, u"-"},       //
    Ecriture{0x1E9E, 0x1E9E, u"SS"},      // capital sharp s
    Ecriture{0x2007, 0x2007, u"\u00A0"},  // figure space
    Ecriture{0x2010, 0x2011, u"-"},       // hyphen, non-breaking hyphen
    Ecriture{0x2012, 0x2012, u"–"},       // figure dash
    Ecriture{0x2015, 0x2015, u"—"},       // horizontal bar
    Ecriture{0x2016, 0x2016, u"||"},      //
    Ecriture{0x201B, 0x201B, u"'"},       //
    Ecriture{0x201F, 0x201F, u"\""},      //
    Ecriture{0x2023, 0x2023, u"•"},       // triangular bullet
    Ecriture{0x2027, 0x2027, u"·"},       //
    Ecriture{0x2028, 0x2029, u"\n"},      // line and paragraph separators
    Ecriture{0x202F, 0x202F, u"\u00A0"},  // narrow no-break space
    Ecriture{0x2032, 0x2032, u"'"},       // primes: minutes, inches, feet
    Ecriture{0x2033, 0x2033, u"\""},      //
    Ecriture{0x2034, 0x2034, u"'''"},     //
    Ecriture{0x2035, 0x2035, u"'"},       //
    Ecriture{0x2036, 0x2036, u"\""},      //
    Ecriture{0x2043, 0x2043, u"-"},       // hyphen bullet
    Ecriture{0x2044, 0x2044, u"/"},       // fraction slash
    Ecriture{0x204E, 0x204E, u"*"},       //
    Ecriture{0x2052, 0x2052, u"%"},       //
    Ecriture{0x2053, 0x2053, u"~"},       //
    Ecriture{0x2116, 0x2116, u"N°"},      // numero sign
    Ecriture{0x2190, 0x2190, u"<-"},      // arrows
    Ecriture{0x2191, 0x2191, u""},        //
    Ecriture{0x2192, 0x2192, u"->"},      //
    Ecriture{0x2193, 0x2193, u""},        //
    Ecriture{0x2194, 0x2194, u"<->"},     //
    Ecriture{0x219D, 0x219D, u"->"},      //
    Ecriture{0x21A6, 0x21A6, u"->"},      //
    Ecriture{0x21A9, 0x21A9, u"<-"},      //
    Ecriture{0x21AA, 0x21AA, u"->"},      //
    Ecriture{0x21B3, 0x21B3, u"->"},      //
    Ecriture{0x21D0, 0x21D0, u"<-"},      //
    Ecriture{0x21D2, 0x21D2, u"=>"},      //
    Ecriture{0x21D4, 0x21D4, u"<=>"},     //
    Ecriture{0x21E6, 0x21E6, u"<-"},      //
    Ecriture{0x21E8, 0x21E8, u"->"},      //
    Ecriture{0x2205, 0x2205, u"Ø"},       // empty set, for a diameter
    Ecriture{0x2212, 0x2212, u"-"},       // minus
    Ecriture{0x2215, 0x2215, u"/"},       // division slash
    Ecriture{0x2216, 0x2216, u"\\"},      //
    Ecriture{0x2217, 0x2217, u"*"},       // asterisk operator
    Ecriture{0x2218, 0x2218, u"°"},       // ring operator
    Ecriture{0x2219, 0x2219, u"·"},       // bullet operator
    Ecriture{0x2236, 0x2236, u":"},       // ratio
    Ecriture{0x223C, 0x223D, u"~"},       // about
    Ecriture{0x2243, 0x2243, u"~"},       //
    Ecriture{0x2245, 0x2245, u"~"},       //
    Ecriture{0x2248, 0x2248, u"~"},       //
    Ecriture{0x2260, 0x2260, u"!="},      // comparisons
    Ecriture{0x2264, 0x2264, u"<="},      //
    Ecriture{0x2265, 0x2265, u">="},      //
    Ecriture{0x2266, 0x2266, u"<="},      //
    Ecriture{0x2267, 0x2267, u">="},      //
    Ecriture{0x22C5, 0x22C5, u"·"},       // dot operator
    Ecriture{0x22C6, 0x22C6, u"*"},       // star operator
    Ecriture{0x22EE, 0x22EF, u"…"},       // ellipses
    Ecriture{0x2300, 0x2300, u"Ø"},       // diameter
    Ecriture{0x231A, 0x231B, u""},        // watch, hourglass
    Ecriture{0x2328, 0x2328, u""},        //
    Ecriture{0x23CF, 0x23CF, u""},        //
    Ecriture{0x23E9, 0x23FA, u""},        // players' keys, clocks
    Ecriture{0x25A0, 0x25FF, u"•"},       // squares, circles, triangles, lozenges
    Ecriture{0x2600, 0x2604, u""},        // weather
    Ecriture{0x2605, 0x2606, u"*"},       // stars
    Ecriture{0x2607, 0x260F, u""},        //
    Ecriture{0x2610, 0x2612, u"•"},       // ballot boxes
    Ecriture{0x2613, 0x266E, u""},        //
    Ecriture{0x266F, 0x266F, u"#"},       //
    Ecriture{0x2670, 0x2697, u""},        //
    Ecriture{0x2698, 0x26A9, u""},        //
    Ecriture{0x26AA, 0x26AC, u"•"},       // circles
    Ecriture{0x26AD, 0x2704, u""},        //
    Ecriture{0x2705, 0x2705, u"•"},       // check mark
    Ecriture{0x2706, 0x2712, u""},        //
    Ecriture{0x2713, 0x2714, u"•"},       // check marks
    Ecriture{0x2715, 0x2718, u"×"},       // multiplication signs
    Ecriture{0x2719, 0x2721, u""},        // crosses
    Ecriture{0x2722, 0x2727, u"*"},       // asterisks, stars
    Ecriture{0x2728, 0x2728, u""},        // sparkles
    Ecriture{0x2729, 0x2743, u"*"},       //
    Ecriture{0x2744, 0x2744, u""},        // snowflake
    Ecriture{0x2745, 0x274B, u"*"},       //
    Ecriture{0x274C, 0x274C, u"×"},       //
    Ecriture{0x274D, 0x2752, u"•"},       //
    Ecriture{0x2753, 0x2755, u""},        // coloured question and exclamation marks
    Ecriture{0x2756, 0x2756, u"•"},       //
    Ecriture{0x2757, 0x2757, u""},        //
    Ecriture{0x2758, 0x275A, u"|"},       //
    Ecriture{0x275B, 0x275C, u"'"},       // quotation marks
    Ecriture{0x275D, 0x275E, u"\""},      //
    Ecriture{0x275F, 0x275F, u"'"},       //
    Ecriture{0x2760, 0x2760, u"\""},      //
    Ecriture{0x2761, 0x2767, u""},        // hearts, leaves
    Ecriture{0x2794, 0x2794, u"->"},      // arrows
    Ecriture{0x2795, 0x2795, u"+"},       //
    Ecriture{0x2796, 0x2796, u"-"},       //
    Ecriture{0x2797, 0x2797, u"÷"},       //
    Ecriture{0x2798, 0x27A1, u"->"},      //
    Ecriture{0x27A2, 0x27A4, u"•"},       // arrowheads, as bullets
    Ecriture{0x27A5, 0x27AF, u"->"},      //
    Ecriture{0x27B0, 0x27B0, u""},        // loops
    Ecriture{0x27B1, 0x27BE, u"->"},      //
    Ecriture{0x27BF, 0x27BF, u""},        //
    Ecriture{0x27E8, 0x27E8, u"‹"},       // angle brackets
    Ecriture{0x27E9, 0x27E9, u"›"},       //
    Ecriture{0x27F5, 0x27F5, u"<-"},      // long arrows
    Ecriture{0x27F6, 0x27F6, u"->"},      //
    Ecriture{0x27F9, 0x27F9, u"=>"},      //
    Ecriture{0x2800, 0x2800, u" "},       // empty braille cell
    Ecriture{0x2981, 0x2981, u"•"},       // spot
    Ecriture{0x29F8, 0x29F8, u"/"},       //
    Ecriture{0x2A2F, 0x2A2F, u"×"},       //
    Ecriture{0x2A7D, 0x2A7D, u"<="},      //
    Ecriture{0x2A7E, 0x2A7E, u">="},      //
    Ecriture{0x2B05, 0x2B05, u"<-"},      //
    Ecriture{0x2B06, 0x2B07, u""},        //
    Ecriture{0x2B1B, 0x2B2F, u"•"},       // squares, lozenges, circles
    Ecriture{0x2B50, 0x2B50, u"*"},       // star
    Ecriture{0x2B55, 0x2B55, u"•"},       //
    Ecriture{0x2B95, 0x2B95, u"->"},      //
    Ecriture{0x2E3A, 0x2E3B, u"—"},       // long dashes
    Ecriture{0x3001, 0x3001, u","},       //
    Ecriture{0x3002, 0x3002, u"."},       //
    Ecriture{0x3008, 0x3008, u"‹"},       //
    Ecriture{0x3009, 0x3009, u"›"},       //
    Ecriture{0x300A, 0x300A, u"«"},       //
    Ecriture{0x300B, 0x300B, u"»"},       //
    Ecriture{0x301C, 0x301C, u"~"},       //
    Ecriture{0x301D, 0x301F, u"\""},      //
    Ecriture{0x3030, 0x3030, u"~"},       //
    Ecriture{0x30FB, 0x30FB, u"·"},       //
    Ecriture{0x339F, 0x339F, u"mm²"},     // units in one sign, whose exponent is kept
    Ecriture{0x33A0, 0x33A0, u"cm²"},     //
    Ecriture{0x33A1, 0x33A1, u"m²"},      //
    Ecriture{0x33A2, 0x33A2, u"km²"},     //
    Ecriture{0x33A3, 0x33A3, u"mm³"},     //
    Ecriture{0x33A4, 0x33A4, u"cm³"},     //
    Ecriture{0x33A5, 0x33A5, u"m³"},      //
    Ecriture{0x33A6, 0x33A6, u"km³"},     //
    Ecriture{0xA78B, 0xA78C, u"'"},       //
    Ecriture{0xF020, 0xF020, u" "},       // signs of word processors' own fonts: mostly bullets
    Ecriture{0xF021, 0xF02C, u"•"},       //
    Ecriture{0xF02D, 0xF02D, u"-"},       //
    Ecriture{0xF02E, 0xF049, u"•"},       //
    Ecriture{0xF04A, 0xF04C, u""},        // faces
    Ecriture{0xF04D, 0xF0A2, u"•"},       //
    Ecriture{0xF0A3, 0xF0A3, u"<="},      //
    Ecriture{0xF0A4, 0xF0AD, u"•"},       //
    Ecriture{0xF0AE, 0xF0AE, u"->"},      //
    Ecriture{0xF0AF, 0xF0AF, u"•"},       //
    Ecriture{0xF0B0, 0xF0B0, u"°"},       //
    Ecriture{0xF0B1, 0xF0B1, u"±"},       //
    Ecriture{0xF0B2, 0xF0B2, u"•"},       //
    Ecriture{0xF0B3, 0xF0B3, u">="},      //
    Ecriture{0xF0B4, 0xF0B4, u"×"},       //
    Ecriture{0xF0B5, 0xF0DE, u"•"},       //
    Ecriture{0xF0DF, 0xF0DF, u"<-"},      //
    Ecriture{0xF0E0, 0xF0E0, u"->"},      //
    Ecriture{0xF0E1, 0xF0E7, u"•"},       //
    Ecriture{0xF0E8, 0xF0E8, u"->"},      //
    Ecriture{0xF0E9, 0xF0EF, u"•"},       //
    Ecriture{0xF0F0, 0xF0F0, u"->"},      //
    Ecriture{0xF0F1, 0xF0FF, u"•"},       //
    Ecriture{0xFFFC, 0xFFFC, u""},        // place of an object
    Ecriture{0x1F000, 0x1F0FF, u""},      // games
    Ecriture{0x1F191, 0x1F1FF, u""},      // flags
    Ecriture{0x1F300, 0x1F31E, u""},      //
    Ecriture{0x1F31F, 0x1F31F, u"*"},     // star
    Ecriture{0x1F320, 0x1F4AE, u""},      //
    Ecriture{0x1F4AF, 0x1F4AF, u"100"},   //
    Ecriture{0x1F4B0, 0x1F51E, u""},      //
    Ecriture{0x1F520, 0x1F533, u""},      //
    Ecriture{0x1F534, 0x1F53B, u"•"},     // coloured circles and lozenges
    Ecriture{0x1F53C, 0x1F7DF, u""},      //
    Ecriture{0x1F7E0, 0x1F7EB, u"•"},     //
    Ecriture{0x1F7F0, 0x1F7F0, u"="},     //
    Ecriture{0x1F800, 0x1FAFF, u""},      //
};

/// Signs in a row that have no compatibility form: the one at `premier` is written as the number or
/// the letter `debut`, the next one as the next.
struct Suite {
  char32_t premier;
  char32_t dernier;
  int debut;
};

/// Numbers in a ring or in a disc, by ascending code.
inline constexpr std::array suitesNombres{
    Suite{0x24EB, 0x24F4, 11},  Suite{0x24F5, 0x24FE, 1},   Suite{0x24FF, 0x24FF, 0},
    Suite{0x2776, 0x277F, 1},   Suite{0x2780, 0x2789, 1},   Suite{0x278A, 0x2793, 1},
    Suite{0x1F10B, 0x1F10B, 0}, Suite{0x1F10C, 0x1F10C, 0}, Suite{0x1F51F, 0x1F51F, 10},
};

/// Letters in a disc or on a plate, by ascending code.
inline constexpr std::array suitesLettres{
    Suite{0x1F150, 0x1F169, 'A'},
    Suite{0x1F170, 0x1F189, 'A'},
};

}  // namespace gastrelle
