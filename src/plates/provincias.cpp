#include "plates/provincias.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <array>

// The year lists live in a resource of the core library, which a static link drops
// unless something names it.
static void iniciarListas()
{
    Q_INIT_RESOURCE(provincias);
}

namespace zafro::provincias {

namespace {

// kept: the names as the window has always shown them, "Guipuzcua" included.
const std::array<Provincia, kProvincias> kProvinciasTabla = {{
    {"VI", u"Alava", "bprovi", "cprovi"},       {"AB", u"Albacete", "bproab", "cproab"},
    {"A", u"Alicante", "bproa", "cproa"},       {"AL", u"Almeria", "bproal", "cproal"},
    {"AV", u"Avila", "bproav", "cproav"},       {"BA", u"Badajoz", "bproba", "cproba"},
    {"IB", u"Baleares", "bproib", "cproib"},    {"B", u"Barcelona", "bprob", "cprob"},
    {"BU", u"Burgos", "bprobu", "cprobu"},      {"CC", u"Cáceres", "bprocc", "cprocc"},
    {"CA", u"Cádiz", "bproca", "cproca"},       {"CS", u"Castellón", "bprocs", "cprocs"},
    {"CE", u"Ceuta", "bproce", "cproce"},       {"CR", u"Ciudad Real", "bprocr", "cprocr"},
    {"CO", u"Córdoba", "bproco", "cproco"},     {"C", u"Coruña, La", "bproc", "cproc"},
    {"CU", u"Cuenca", "bprocu", "cprocu"},      {"GI", u"Girona", "bprogi", "cprogi"},
    {"GR", u"Granada", "bprogr", "cprogr"},     {"GU", u"Guadalajara", "bprogu", "cprogu"},
    {"SS", u"Guipuzcua", "bpross", "cpross"},   {"H", u"Huelva", "bproh", "cproh"},
    {"HU", u"Huesca", "bprohu", "cprohu"},      {"J", u"Jaén", "bproj", "cproj"},
    {"LE", u"León", "bprole", "cprole"},        {"L", u"Lérida", "bprol", "cprol"},
    {"LO", u"Logroño", "bprolo", "cprolo"},     {"LU", u"Lugo", "bprolu", "cprolu"},
    {"M", u"Madrid", "bprom", "cprom"},         {"MA", u"Málaga", "bproma", "cproma"},
    {"ML", u"Melilla", "bproml", "cproml"},     {"MU", u"Murcia", "bpromu", "cpromu"},
    {"NA", u"Navarra", "bprona", "cprona"},     {"OR", u"Orense", "bproor", "cproor"},
    {"O", u"Oviedo", "bproo", "cproo"},         {"P", u"Palencia", "bprop", "cprop"},
    {"GC", u"Palmas, Las", "bprogc", "cprogc"}, {"PO", u"Pontevedra", "bpropo", "cpropo"},
    {"SA", u"Salamanca", "bprosa", "cprosa"},   {"TF", u"St. C. Tenerife", "bprotf", "cprotf"},
    {"S", u"Santander", "bpros", "cpros"},      {"SG", u"Segovia", "bprosg", "cprosg"},
    {"SE", u"Sevilla", "bprose", "cprose"},     {"SO", u"Soria", "bproso", "cproso"},
    {"T", u"Tarragona", "bprot", "cprot"},      {"TE", u"Teruel", "bprote", "cprote"},
    {"TO", u"Toledo", "bproto", "cproto"},      {"V", u"Valencia", "bprov", "cprov"},
    {"VA", u"Valladolid", "bprova", "cprova"},  {"BI", u"Vizcaya", "bprobi", "cprobi"},
    {"ZA", u"Zamora", "bproza", "cproza"},      {"Z", u"Zaragoza", "bproz", "cproz"},
}};

const std::array<Territorio, kTerritorios> kTerritoriosTabla = {{
    {"SHA", u"Sahara (El Aaiun)"},
    {"TEG", u"Terr. Esp. Guinea"},
    {"RM", u"Rio Muni (Guinea)"},
    {"FP", u"Fernando Poo (Guinea Isla)"},
    {"AOE", u"Africa Occidental Española"},
    {"GSH", u"Policia Territorial del Sahara"},
    {"IF", u"Sidi Ifni"},
    {"ME", u"Marruecos Español"},
}};

// No Ñ, Q or R: they were left out of the letter series of this format.
constexpr char16_t kLetras[] = u"ABCDEFGHIJKLMNOPSTUVWXYZ";

// Rows of a list file: the list's name, where the figures come from, the entries.
void leerFichero(const QString &ruta, QHash<QString, QStringList> &listas)
{
    QFile file(ruta);
    if (!file.open(QIODevice::ReadOnly))
        return;
    static const QRegularExpression blancos(QStringLiteral("\\s+"));
    const QStringList lineas = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &linea : lineas) {
        if (linea.startsWith(u'#') || linea.trimmed().isEmpty())
            continue;
        QStringList campos = linea.split(blancos, Qt::SkipEmptyParts);
        if (campos.size() < 2)
            continue;
        const QString nombre = campos.takeFirst();
        campos.removeFirst();
        listas.insert(nombre, campos);
    }
}

const QHash<QString, QStringList> &listas()
{
    static const QHash<QString, QStringList> todas = [] {
        iniciarListas();
        QHash<QString, QStringList> leidas;
        leerFichero(QStringLiteral(":/plates/provincias_1971_2000.txt"), leidas);
        leerFichero(QStringLiteral(":/plates/provincias_1900_1971.txt"), leidas);
        return leidas;
    }();
    return todas;
}

} // namespace

const Provincia &provincia(int indice)
{
    return kProvinciasTabla.at(std::size_t(indice));
}

const Territorio &territorio(int indice)
{
    return kTerritoriosTabla.at(std::size_t(indice));
}

QString nombreEnMensaje(int indice)
{
    if (indice == 15)
        return QStringLiteral("A Coruña");
    if (indice == 36)
        return QStringLiteral("Las Palmas");
    return QString::fromUtf16(provincia(indice).nombre);
}

QStringList lista(const QString &nombre)
{
    return listas().value(nombre);
}

double entrada(const QStringList &lista, int i)
{
    return i >= 0 && i < lista.size() ? Val(lista.at(i)) : 0;
}

int valorLetra(QChar letra)
{
    return int(QString::fromUtf16(kLetras).indexOf(letra.toUpper()));
}

double numeroCoche(double digitos, int letra)
{
    return (letra + 1) * 10000.0 + digitos;
}

double numeroCoche(double digitos, int letra1, int letra2)
{
    return (letra1 + 1) * 240000.0 + (letra2 + 1) * 10000.0 + digitos;
}

Hallazgo buscarAno(const QStringList &lista, double numero, QString &indice,
                   const std::function<bool()> &antesDelPaso)
{
    // kept: the original tried one year per call of a step that called itself; the
    // loop keeps its order of checks and its limit.
    for (;;) {
        if (antesDelPaso && !antesDelPaso())
            return {};
        const int i = int(Val(indice)) + 1;
        indice = CStr(i);
        const double c = entrada(lista, i);
        if (c >= numero) {
            indice = QStringLiteral("-1");
            return {Hallazgo::Encontrado, i, entrada(lista, i - 1), c};
        }
        if (i >= kUltimoPaso) {
            indice = QStringLiteral("-1");
            return {Hallazgo::NoExiste, i, 0, 0};
        }
    }
}

int mesEstimado(double numero, double p, double c, double factor)
{
    return int(Round((numero - p) * factor / (c - p)));
}

} // namespace zafro::provincias
