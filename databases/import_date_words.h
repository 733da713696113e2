// SPDX-License-Identifier: GPL-3.0-or-later
// The words of dates in the languages that an import knows.
#pragma once

#include <string_view>

namespace import_words {

// Twelve a language, January first, without accents; Russian and Greek in Latin letters.
inline constexpr std::string_view monthNames =
    "january february march april may june july august september october november december "
    "januar februar marz april mai juni juli august september oktober november dezember "
    "janvier fevrier mars avril mai juin juillet aout septembre octobre novembre decembre "
    "enero febrero marzo abril mayo junio julio agosto septiembre octubre noviembre diciembre "
    "gennaio febbraio marzo aprile maggio giugno luglio agosto settembre ottobre novembre dicembre "
    "janeiro fevereiro marco abril maio junho julho agosto setembro outubro novembro dezembro "
    "januari februari maart april mei juni juli augustus september oktober november december "
    "januari februari mars april maj juni juli augusti september oktober november december "
    "stycznia lutego marca kwietnia maja czerwca lipca sierpnia wrzesnia pazdziernika listopada "
    "grudnia ledna unora brezna dubna kvetna cervna cervence srpna zari rijna listopadu prosince "
    "januar februar marcius aprilis majus junius julius augusztus szeptember oktober november "
    "december ocak subat mart nisan mayis haziran temmuz agustos eylul ekim kasim aralik "
    "tammikuuta helmikuuta maaliskuuta huhtikuuta toukokuuta kesakuuta heinakuuta elokuuta "
    "syyskuuta "
    "lokakuuta marraskuuta joulukuuta yanvarya fevralya marta aprelya maya iyunya iyulya avgusta "
    "sentyabrya oktyabrya noyabrya dekabrya "
    "ianoyarioy fevroyarioy martioy aprilioy maioy ioynioy ioylioy aygoystoy septemvrioy oktovrioy "
    "noemvrioy dekemvrioy "
    "janner feber mar april maj juni juli aug setiembre okt nov desember "
    "janner feber mrt april maj juni juli aug setiembre okt nov desember";

// Seven a language, Sunday first. Those of two letters stand for themselves alone.
inline constexpr std::string_view weekdayNames =
    "sunday monday tuesday wednesday thursday friday saturday "
    "sonntag montag dienstag mittwoch donnerstag freitag samstag "
    "so mo di mi do fr sa "
    "dimanche lundi mardi mercredi jeudi vendredi samedi "
    "domingo lunes martes miercoles jueves viernes sabado "
    "domenica lunedi martedi mercoledi giovedi venerdi sabato "
    "domingo segunda terca quarta quinta sexta sabado "
    "zondag maandag dinsdag woensdag donderdag vrijdag zaterdag "
    "sondag mandag tirsdag onsdag torsdag fredag lordag "
    "sunday monday tisdag onsdag thurs friday sonnabend "
    "sunnuntai maanantai tiistai keskiviikko torstai perjantai lauantai "
    "su ma ti ke to pe la "
    "voskresene ponedelnik vtornik sreda chetverg pyatnitsa subbota "
    "vs pn vt sr cht pt sb "
    "kyriaki deytera triti tetarti pempti paraskeyi savvato "
    "su mo tu we th fr sa "
    "zo ma di wo do vr za "
    "di lu ma me je ve sa "
    "do lu ma mi ju vi sa";

inline constexpr std::string_view fillers =
    " de del of the le den der am on d t z st nd rd th er g goda ";

}  // namespace import_words
