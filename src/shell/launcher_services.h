#pragma once

// The launcher's small services apart from its window: the clock and the date in
// their formats, the comment on the visit count and the greeting of the day, the
// popup's wandering and the chase of the web address's letters. Positions are in
// twips, as the window keeps them.

#include <QDate>
#include <QDateTime>
#include <QPoint>
#include <QString>

#include <vector>

namespace zafro {

// The clock and the date as the launcher shows them. The zeros of the time are
// cleared at every refresh; kept: those of the day and the month never are, so a
// launcher left open from the 9th to the 10th shows "010".
class RelojIndex {
public:
    void refrescar(const QDateTime &now);

    QString hora(double formatoHora) const; // Label4
    QString tipHora() const;
    QString fecha(double formatoFecha) const; // Label8
    QString tipFecha() const;

    int hora24() const { return hora24_; }
    int hora12() const { return hora12_; }
    QString amPm() const { return amPm_; }
    QString diaSemana() const { return diaSemana_; }

private:
    QString horaCompleta() const;
    QString diaMesAno() const;

    int hora24_ = 0, minuto_ = 0, segundo_ = 0;
    int dia_ = 0, mes_ = 0, ano_ = 0;
    int hora12_ = 0;
    QString amPm_;
    QString diaSemana_;
    QString ceroHora_, ceroMinuto_, ceroSegundo_;
    QString ceroDia_, ceroMes_;
};

// The weekday's name, 1 Sunday to 7 Saturday.
QString nombreDiaSemana(int diaDomingoPrimero);

// A click on the clock or the date: the next format, anything unknown going to 1.
double siguienteFormatoHora(double formato);
double siguienteFormatoFecha(double formato);

// Label5's comment on the visit count; empty below the first threshold, where the
// label keeps its design text.
QString comentarioVisitas(double visitas);

// What the date puts over the comment: a greeting (never translated), and in 2015
// the author's reminder over that, with a message on the day itself.
struct SaludoDelDia {
    QString label5;  // empty: the comment stays
    QString mensaje; // empty: no message box
};
SaludoDelDia saludoDelDia(const QDate &hoy);

// The popup's two steps of 20 twips: left edge in, true when it turns round.
bool pasoPopupDerecha(int &leftTwips, double limite);
bool pasoPopupIzquierda(int &leftTwips);

// One tick of the chasing letters over the whole array: member 0 eases toward the
// cursor, each later member toward the one before it, 10 to its right.
struct PuntoTwips {
    double left = 0;
    double top = 0;
};
void pasoPersecucion(std::vector<PuntoTwips> &clip, QPoint cursor, int velocidad);

} // namespace zafro
