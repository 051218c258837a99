#pragma once

#include "common/values/locale.h"

namespace brx::checks {

// The settings of some users, as far as they matter here.

inline Locale make_german() {
    Locale locale;
    locale.decimal_separator = locale.money_decimal_separator = ",";
    locale.grouping_separator = locale.money_grouping_separator = ".";
    locale.currency_symbol = "€";
    locale.date_order = DateOrder::day_month_year;
    locale.date_separator = ".";
    locale.short_date = "d.M.yyyy";
    locale.long_time = "HH:mm:ss";
    locale.months = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                     "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    locale.short_months = {"Jan", "Feb", "Mär", "Apr", "Mai", "Jun",
                           "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
    locale.days = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"};
    locale.short_days = {"Mo.", "Di.", "Mi.", "Do.", "Fr.", "Sa.", "So."};
    locale.true_text = "Wahr";
    locale.false_text = "Falsch";
    return locale;
}

inline Locale make_french() {
    Locale locale;
    locale.decimal_separator = locale.money_decimal_separator = ",";
    locale.grouping_separator = locale.money_grouping_separator = "\u00A0";
    locale.currency_symbol = "€";
    locale.date_order = DateOrder::day_month_year;
    locale.short_date = "dd/MM/yyyy";
    locale.long_time = "HH:mm:ss";
    locale.months = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                     "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
    locale.short_months = {"janv.", "févr.", "mars",  "avr.", "mai",  "juin",
                           "juil.", "août",  "sept.", "oct.", "nov.", "déc."};
    locale.days = {"lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi", "dimanche"};
    locale.short_days = {"lun.", "mar.", "mer.", "jeu.", "ven.", "sam.", "dim."};
    locale.true_text = "Vrai";
    locale.false_text = "Faux";
    return locale;
}

inline const Locale& locale_of_germany() {
    static const Locale locale = make_german();
    return locale;
}

inline const Locale& locale_of_france() {
    static const Locale locale = make_french();
    return locale;
}

} // namespace brx::checks
