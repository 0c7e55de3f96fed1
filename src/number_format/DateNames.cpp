#include "number_format/DateNames.h"

namespace kestrune::number_format {
namespace {

constexpr DateNames english{{"January", "February", "March", "April", "May", "June", "July", "August", "September",
                             "October", "November", "December"},
                            {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
                            {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
                            {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}};

constexpr DateNames german{{"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September",
                            "Oktober", "November", "Dezember"},
                           {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"},
                           {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
                           {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"}};

constexpr DateNames french{{"janvier", "février", "mars", "avril", "mai", "juin", "juillet", "août", "septembre",
                            "octobre", "novembre", "décembre"},
                           {"janv", "févr", "mars", "avr", "mai", "juin", "juil", "août", "sept", "oct", "nov", "déc"},
                           {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"},
                           {"dim", "lun", "mar", "mer", "jeu", "ven", "sam"}};

constexpr DateNames spanish{{"enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto", "septiembre",
                             "octubre", "noviembre", "diciembre"},
                            {"ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sep", "oct", "nov", "dic"},
                            {"domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"},
                            {"dom", "lun", "mar", "mié", "jue", "vie", "sáb"}};

constexpr DateNames italian{{"gennaio", "febbraio", "marzo", "aprile", "maggio", "giugno", "luglio", "agosto",
                             "settembre", "ottobre", "novembre", "dicembre"},
                            {"gen", "feb", "mar", "apr", "mag", "giu", "lug", "ago", "set", "ott", "nov", "dic"},
                            {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"},
                            {"dom", "lun", "mar", "mer", "gio", "ven", "sab"}};

constexpr DateNames dutch{{"januari", "februari", "maart", "april", "mei", "juni", "juli", "augustus", "september",
                           "oktober", "november", "december"},
                          {"jan", "feb", "mrt", "apr", "mei", "jun", "jul", "aug", "sep", "okt", "nov", "dec"},
                          {"zondag", "maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag"},
                          {"zo", "ma", "di", "wo", "do", "vr", "za"}};

constexpr DateNames portuguese{
    {"janeiro", "fevereiro", "março", "abril", "maio", "junho", "julho", "agosto", "setembro", "outubro", "novembro",
     "dezembro"},
    {"jan", "fev", "mar", "abr", "mai", "jun", "jul", "ago", "set", "out", "nov", "dez"},
    {"domingo", "segunda-feira", "terça-feira", "quarta-feira", "quinta-feira", "sexta-feira", "sábado"},
    {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"}};

}  // namespace

const DateNames& date_names(std::uint32_t language) {
    switch (language & 0x3FFU) {  // the language without its country
        case 0x07:
            return german;
        case 0x0A:
            return spanish;
        case 0x0C:
            return french;
        case 0x10:
            return italian;
        case 0x13:
            return dutch;
        case 0x16:
            return portuguese;
        default:
            return english;
    }
}

}  // namespace kestrune::number_format
