#pragma once

#include "ApplicationText.h"

namespace gallery {

struct PortugueseTexts {
    static constexpr std::string_view language = "pt";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Adicionar treino"},
        {"All pickers", "Todos os seletores"},
        {"Workout", "Treino"},
        {"Workouts", "Treinos"},
        {"Best interval", "Melhor intervalo"},
        {"Heart", "Coração"},
        {"Conditions", "Condições"},
        {"Body", "Corpo"},
        {"Distance and time", "Distância e tempo"},
        {"Distance", "Distância"},
        {"Duration", "Duração"},
        {"Average speed", "Velocidade média"},
        {"Speed", "Velocidade"},
        {"Pace", "Ritmo"},
        {"Calories", "Calorias"},
        {"Heart rate", "Frequência cardíaca"},
        {"Resting pulse", "Pulso em repouso"},
        {"Beats per minute", "Batimentos por minuto"},
        {"Weather", "Clima"},
        {"Temperature", "Temperatura"},
        {"Water temperature", "Temperatura da água"},
        {"Weight", "Peso"},
        {"Height", "Altura"},
        {"Choose a row to change its value.", "Escolha uma linha para alterar o valor."},
        // Settings and their choices.
        {"Settings", "Ajustes"},
        {"Units", "Unidades"},
        {"Metric", "Métricas"},
        {"Imperial", "Imperiais"},
        {"Kilograms", "Quilogramas"},
        {"Pounds", "Libras"},
        {"Stones", "Stones"},
        {"Text size", "Tamanho do texto"},
        {"Look", "Aparência"},
        {"System", "Sistema"},
        {"Light", "Claro"},
        {"Dark", "Escuro"},
        {"Decimal separator", "Separador decimal"},
        {"Automatic", "Automático"},
        {"All pages", "Todas as páginas"},
        {"Light or dark", "Claro ou escuro"},
        {"Motion", "Movimento"},
        {"Full", "Completo"},
        {"Reduced", "Reduzido"},
        {"Contrast", "Contraste"},
        {"Normal", "Normal"},
        {"High", "Alto"},
        {"Wheel clicks", "Clique do seletor"},
        {"On", "Ativado"},
        {"Off", "Desativado"},
        {"Language", "Idioma"},
        // Files.
        {"Open", "Abrir"},
        {"Save", "Salvar"},
        {"Opened:", "Aberto:"},
        {"Saved:", "Salvo:"},
        {"The file could not be read:", "Não foi possível ler o arquivo:"},
        {"The file could not be written:", "Não foi possível gravar o arquivo:"},
        {"The file has no number for:", "O arquivo não contém um número para:"},
        {"A number in the file is out of range:", "Um número no arquivo está fora do intervalo:"},
        {"The file names no weather that this application knows.", "O arquivo não indica um clima conhecido por este aplicativo."},
        {"This file is damaged, or no workout.", "Este arquivo está danificado ou não é um treino."},
        {"This file is damaged.", "Este arquivo está danificado."},
        {"This file is no workout.", "Este arquivo não é um treino."},
        {"This workout was saved by a newer version of this application.",
         "Este treino foi salvo por uma versão mais recente deste aplicativo."},
        // Weather.
        {"clear", "céu limpo"},
        {"partly cloudy", "parcialmente nublado"},
        {"cloudy", "nublado"},
        {"overcast", "encoberto"},
        {"fog", "nevoeiro"},
        {"drizzle", "garoa"},
        {"rain", "chuva"},
        {"showers", "pancadas de chuva"},
        {"thunderstorm", "trovoada"},
        {"sleet", "chuva com neve"},
        {"snow", "neve"},
        {"wind", "vento"},
    };
};

} // namespace gallery
