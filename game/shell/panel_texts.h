#pragma once

namespace tombrello {

inline constexpr const char* kHelpText =
    "IL MOUSE\n"
    "\n"
    "Tasto sinistro\n"
    "• PESCA dal Pozzo o dal Tallone.\n"
    "• CALA o ATTACCA le carte selezionate.\n"
    "• SCARTA sul Pozzo una carta non selezionata.\n"
    "\n"
    "Tasto destro\n"
    "• SELEZIONA una carta della mano; un secondo clic la DESELEZIONA.\n"
    "\n"
    "Per calare\n"
    "Selezionate le carte con il tasto destro, poi fate clic con il tasto sinistro sulla parte "
    "dello schermo riservata alle vostre combinazioni o a quelle del compagno: il puntatore "
    "diventa una freccia verso l'alto. Le scale vengono messe in ordine dal computer.\n"
    "\n"
    "Per attaccare\n"
    "Selezionate una sola carta con il tasto destro, poi fate clic con il tasto sinistro su una "
    "carta della combinazione a cui volete aggiungerla.\n"
    "\n"
    "Con la tastiera\n"
    "Le frecce e Tab spostano il contorno da un posto all'altro: lì Invio è il tasto sinistro, la "
    "barra spaziatrice il destro. Mentre giocano gli altri, tenete premuta la barra per fare più "
    "in fretta. Finito il conteggio, Invio continua. F1 apre questo aiuto, Esc lo chiude.";

inline constexpr const char* kRulesText =
    "LE REGOLE\n"
    "\n"
    "Si gioca in quattro, a coppie, con due mazzi di 52 carte. I compagni siedono uno di fronte "
    "all'altro. Ognuno riceve 13 carte; le altre formano il Tallone, al centro del tavolo, e la "
    "prima carta scoperta dà inizio al Pozzo.\n"
    "\n"
    "Il turno\n"
    "Si pesca una carta dal Tallone o dal Pozzo, poi si possono calare combinazioni o attaccare "
    "carte a quelle della propria coppia, e infine si scarta una carta sul Pozzo.\n"
    "\n"
    "La fine della mano\n"
    "La mano finisce quando un giocatore resta senza carte. Ogni coppia somma i punti delle carte "
    "calate e sottrae quelli delle carte rimaste in mano.\n"
    "\n"
    "Chiudere in una volta\n"
    "Chi chiude calando tutte le sue carte in una sola volta raddoppia i punti e ne riceve 200 in "
    "più; il compagno che non ha ancora calato paga 100 punti, gli avversari che non hanno calato "
    "ne pagano 200.\n"
    "\n"
    "La vittoria\n"
    "Vince la partita la coppia che arriva per prima a 1500 punti.\n"
    "\n"
    "Le combinazioni\n"
    "• Tris: tre carte dello stesso valore e di semi diversi.\n"
    "• Scala: da tre a sei carte in fila dello stesso seme; l'Asso sta tra il Re e il 2.\n"
    "• Poker: quattro carte dello stesso valore e di semi diversi.\n"
    "• Tombrello: una scala di almeno sette carte.\n"
    "• Tombrellone: la scala completa di quattordici carte, da Asso ad Asso.\n"
    "\n"
    "I punti\n"
    "• Le carte dal 2 al 5 valgono 5 punti.\n"
    "• Le carte dal 6 al Re valgono 10 punti.\n"
    "• L'Asso vale 15 punti.\n"
    "• Un Poker vale 40, 80 o 120 punti, secondo il suo valore.\n"
    "• Un Tombrello vale il doppio dei punti delle sue carte.\n"
    "• Un Tombrellone vale 600 punti.";

inline constexpr const char* kInfoText =
    "Tombrello ver 3.3\n"
    "-----------------------";

}  // namespace tombrello
