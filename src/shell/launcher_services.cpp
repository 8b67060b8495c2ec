#include "shell/launcher_services.h"

#include "runtime/numtext.h"
#include "shell/language.h"

namespace zafro {

namespace {

QString zeroIfBelowTen(int part)
{
    return part < 10 ? QStringLiteral("0") : QString();
}

} // namespace

QString nombreDiaSemana(int diaDomingoPrimero)
{
    static const int days[] = {slot::Domingo, slot::Lunes,   slot::Martes, slot::Miercoles,
                               slot::Jueves,  slot::Viernes, slot::Sabado};
    if (diaDomingoPrimero < 1 || diaDomingoPrimero > 7)
        return {};
    return texto(days[diaDomingoPrimero - 1]);
}

void RelojIndex::refrescar(const QDateTime &now)
{
    ceroHora_.clear();
    ceroMinuto_.clear();
    ceroSegundo_.clear();
    const QTime time = now.time();
    const QDate date = now.date();
    hora24_ = time.hour();
    minuto_ = time.minute();
    segundo_ = time.second();
    dia_ = date.day();
    mes_ = date.month();
    ano_ = date.year();
    // kept: from noon the hour loses 12 whole, so 12:xx reads 0 PM and 0:xx 0 AM.
    hora12_ = hora24_ < 12 ? hora24_ : hora24_ - 12;
    amPm_ = hora24_ < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
    diaSemana_ = nombreDiaSemana(date.dayOfWeek() % 7 + 1);
    ceroHora_ = zeroIfBelowTen(hora24_);
    ceroMinuto_ = zeroIfBelowTen(minuto_);
    ceroSegundo_ = zeroIfBelowTen(segundo_);
    if (mes_ < 10)
        ceroMes_ = QStringLiteral("0");
    if (dia_ < 10)
        ceroDia_ = QStringLiteral("0");
}

QString RelojIndex::horaCompleta() const
{
    return QStringLiteral("%1%2:%3%4:%5%6")
        .arg(ceroHora_)
        .arg(hora24_)
        .arg(ceroMinuto_)
        .arg(minuto_)
        .arg(ceroSegundo_)
        .arg(segundo_);
}

QString RelojIndex::diaMesAno() const
{
    return QStringLiteral("%1%2/%3%4/%5").arg(ceroDia_).arg(dia_).arg(ceroMes_).arg(mes_).arg(ano_);
}

QString RelojIndex::hora(double formatoHora) const
{
    const QString minutos = ceroMinuto_ + QString::number(minuto_);
    if (formatoHora == 2)
        return ceroHora_ + QString::number(hora24_) + QLatin1Char(':') + minutos;
    if (formatoHora == 3)
        return QString::number(hora12_) + QLatin1Char(':') + minutos + QLatin1Char(':') +
               ceroSegundo_ + QString::number(segundo_) + QLatin1Char(' ') + amPm_;
    if (formatoHora == 4)
        return QString::number(hora12_) + QLatin1Char(':') + minutos + QLatin1Char(' ') + amPm_;
    return horaCompleta();
}

QString RelojIndex::tipHora() const
{
    return diaSemana_ + QStringLiteral(" - ") + horaCompleta();
}

QString RelojIndex::fecha(double formatoFecha) const
{
    if (formatoFecha == 2)
        return QStringLiteral("%1%2/%3%4/%5")
            .arg(ceroMes_)
            .arg(mes_)
            .arg(ceroDia_)
            .arg(dia_)
            .arg(ano_);
    if (formatoFecha == 3)
        return diaSemana_ + QLatin1Char(' ') + diaMesAno();
    return diaMesAno();
}

QString RelojIndex::tipFecha() const
{
    return diaSemana_ + QStringLiteral(" - ") + diaMesAno();
}

double siguienteFormatoHora(double formato)
{
    if (formato == 0 || formato == 1)
        return 2;
    if (formato == 2 || formato == 3)
        return formato + 1;
    return 1;
}

double siguienteFormatoFecha(double formato)
{
    if (formato == 0 || formato == 1)
        return 2;
    if (formato == 2)
        return 3;
    return 1;
}

QString comentarioVisitas(double visitas)
{
    static const struct {
        double desde;
        int slot;
    } comentarios[] = {
        {1000000, slot::HasHechoTrampas}, {1000, slot::NoMeLoPuedoCreer},
        {500, slot::EresDeLosQueMas},     {300, slot::EsIncreible},
        {100, slot::VasABatirUnRecord},
    };
    for (const auto &c : comentarios)
        if (visitas >= c.desde)
            return texto(c.slot);
    return {};
}

SaludoDelDia saludoDelDia(const QDate &hoy)
{
    SaludoDelDia s;
    const int d = hoy.day();
    switch (hoy.month()) {
    case 1:
        if (d == 1)
            s.label5 = QStringLiteral("Feliz año ") + QString::number(hoy.year());
        else if (d <= 5)
            s.label5 = QStringLiteral("Feliz Navidad");
        else if (d == 6)
            s.label5 = QStringLiteral("Feliz día de los Reyes Magos");
        break;
    case 10:
        if (d == 12)
            s.label5 = QStringLiteral("Feliz día de la Hispanidad");
        break;
    case 11:
        if (d == 1)
            s.label5 = QStringLiteral("Feliz puente de noviembre");
        break;
    case 12:
        if (d == 6)
            s.label5 = QStringLiteral("Feliz día de la constitución española");
        else if (d >= 24 && d <= 30)
            s.label5 = QStringLiteral("Feliz Navidad");
        else if (d == 31)
            s.label5 = QStringLiteral("Feliz Navidad, disfruta la nochevieja!");
        break;
    default:
        break;
    }
    // kept: the author's own date, tested on the year 2015 alone.
    if (hoy.year() == 2015) {
        if (hoy.month() == 11 || (hoy.month() == 12 && d < 10))
            s.label5 = QStringLiteral("Se acerca el 10 del 12");
        else if (hoy.month() == 12 && d == 10) {
            s.mensaje = QStringLiteral("A las 22h en el Mercado de Colon... s/c  xDxDxD");
            s.label5 = QStringLiteral("Hoy es el día !!");
        }
    }
    return s;
}

bool pasoPopupDerecha(int &leftTwips, double limite)
{
    const int posicion = leftTwips;
    if (limite >= leftTwips)
        leftTwips = posicion + 20;
    return leftTwips > limite;
}

bool pasoPopupIzquierda(int &leftTwips)
{
    const int posicion = leftTwips;
    if (leftTwips > 0)
        leftTwips = posicion - 20;
    return leftTwips < 0;
}

void pasoPersecucion(std::vector<PuntoTwips> &clip, QPoint cursor, int velocidad)
{
    if (clip.empty())
        return;
    // kept: the cursor's screen pixels are taken as twips of the window.
    PuntoTwips &first = clip.front();
    first.left += (cursor.x() - first.left) / velocidad;
    first.top += (cursor.y() - first.top) / velocidad;
    for (std::size_t i = 1; i < clip.size(); ++i) {
        const PuntoTwips &before = clip[i - 1];
        PuntoTwips &letter = clip[i];
        letter.left += (before.left - letter.left + 10) / velocidad;
        letter.top += (before.top - letter.top) / velocidad;
    }
}

} // namespace zafro
