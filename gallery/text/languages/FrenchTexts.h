#pragma once

#include "ApplicationText.h"

namespace gallery {

struct FrenchTexts {
    static constexpr std::string_view language = "fr";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Nouvel entraînement"},
        {"All pickers", "Tous les sélecteurs"},
        {"Workout", "Entraînement"},
        {"Workouts", "Entraînements"},
        {"Best interval", "Meilleur intervalle"},
        {"Heart", "Cœur"},
        {"Conditions", "Conditions"},
        {"Body", "Corps"},
        {"Distance and time", "Distance et temps"},
        {"Distance", "Distance"},
        {"Duration", "Durée"},
        {"Average speed", "Vitesse moyenne"},
        {"Speed", "Vitesse"},
        {"Pace", "Allure"},
        {"Calories", "Calories"},
        {"Heart rate", "Fréquence cardiaque"},
        {"Resting pulse", "Pouls au repos"},
        {"Beats per minute", "Battements par minute"},
        {"Weather", "Météo"},
        {"Temperature", "Température"},
        {"Water temperature", "Température de l’eau"},
        {"Weight", "Poids"},
        {"Height", "Taille"},
        {"Choose a row to change its value.", "Choisissez une ligne pour en modifier la valeur."},
        // Settings and their choices.
        {"Settings", "Réglages"},
        {"Units", "Unités"},
        {"Metric", "Métriques"},
        {"Imperial", "Impériales"},
        {"Kilograms", "Kilogrammes"},
        {"Pounds", "Livres"},
        {"Stones", "Stones"},
        {"Text size", "Taille du texte"},
        {"Look", "Apparence"},
        {"System", "Système"},
        {"Light", "Clair"},
        {"Dark", "Sombre"},
        {"Decimal separator", "Séparateur décimal"},
        {"Automatic", "Automatique"},
        {"All pages", "Toutes les pages"},
        {"Light or dark", "Clair ou sombre"},
        {"Motion", "Animations"},
        {"Full", "Complètes"},
        {"Reduced", "Réduites"},
        {"Contrast", "Contraste"},
        {"Normal", "Normal"},
        {"High", "Élevé"},
        {"Wheel clicks", "Clic des molettes"},
        {"On", "Activé"},
        {"Off", "Désactivé"},
        {"Language", "Langue"},
        // Files.
        {"Open", "Ouvrir"},
        {"Save", "Enregistrer"},
        {"Opened:", "Ouvert\u00A0:"},
        {"Saved:", "Enregistré\u00A0:"},
        {"The file could not be read:", "Impossible de lire le fichier\u00A0:"},
        {"The file could not be written:", "Impossible d’écrire le fichier\u00A0:"},
        {"The file has no number for:", "Le fichier ne contient aucun nombre pour\u00A0:"},
        {"A number in the file is out of range:", "Un nombre du fichier est hors limites\u00A0:"},
        {"The file names no weather that this application knows.", "Le fichier n’indique aucune météo connue de cette application."},
        {"This file is damaged, or no workout.", "Ce fichier est endommagé ou n’est pas un entraînement."},
        {"This file is damaged.", "Ce fichier est endommagé."},
        {"This file is no workout.", "Ce fichier n’est pas un entraînement."},
        {"This workout was saved by a newer version of this application.",
         "Cet entraînement a été enregistré par une version plus récente de cette application."},
        // Weather.
        {"clear", "dégagé"},
        {"partly cloudy", "éclaircies"},
        {"cloudy", "nuageux"},
        {"overcast", "couvert"},
        {"fog", "brouillard"},
        {"drizzle", "bruine"},
        {"rain", "pluie"},
        {"showers", "averses"},
        {"thunderstorm", "orage"},
        {"sleet", "neige fondue"},
        {"snow", "neige"},
        {"wind", "vent"},
    };
};

} // namespace gallery
