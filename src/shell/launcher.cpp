#include "shell/launcher.h"
#include "shell/launcher_hooks.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/language.h"
#include "shell/product.h"
#include "shell/settings.h"

namespace zafro {

const std::array<LauncherLabel, 30> &launcherLabels()
{
    static const std::array<LauncherLabel, 30> labels{{
        {"Labelcom1", slot::GraficasCoordenadas, "coordenadas1", false},
        {"Labelcom2", slot::EcuacionesSegundoGrado, "seggrado", false},
        {"Labelcom2b", slot::CalculosMatrices, "matrices", false},
        {"Labelcom3", slot::NumerosALetras, "numletras", false},
        {"Labelcom4", slot::CalculadoraSencilla, "calculadora", false},
        {"Labelcom4b", slot::CalculoDiferencial, "diferencial", true},
        {"Labelcom5", slot::GradosRadianes, "radian", false},
        {"Labelcom5b", slot::GraficasPolares, "polares1", false},
        {"Labelcom6", slot::AreasGeometria, "areas", false},
        {"Labelcom7", slot::Trigonometria, "trigo", false},
        {"Labelcom7b", slot::GenerarPi, "pi", false},
        {"Labelcom8", slot::Logaritmos, "loga", false},
        {"Labelcom9", slot::Sucesiones, "sucesiones", false},
        {"Labelcom9b", slot::Prestamos, "prestamo", false},
        {"Labelcom10", slot::CompaniaMoviles, "moviles", false},
        {"Labelcom10a", slot::ConquistaJupiter, "nabes", false},
        {"Labelcom11", slot::TarjetasCredito, "visas", false},
        {"Labelcom12", slot::CambiosDivisas, "divisas", false},
        {"Labelcom13", 0, "", false},
        {"Labelcom14", slot::CalculoNif, "nif", false},
        {"Labelcom14b", slot::CalcularIsbn, "ISBN", false},
        {"Labelcom15", 0, "", false},
        {"Labelcom16", slot::AnosBisiestos, "bisiesto", false},
        // kept: its slot sits at the end of the table, apart from the other tools'.
        {"Labelcom17", slot::NumerosRomanos, "romanos", false},
        {"Labelcom18", slot::Temperatura, "temperatura", false},
        {"Labelcom19", slot::TresEnRaya, "tresenraya", true},
        {"Labelcom19b", slot::Cronometro, "cronometro", false},
        {"Labelcom19c", slot::Matriculas, "matriculasselect", false},
        {"Labelcom20", slot::Parejas, "parejass", true},
        {"Labelcom21", slot::CodigoMorse, "morse", false},
    }};
    return labels;
}

const LauncherLabel *launcherLabel(const QString &name)
{
    for (const LauncherLabel &label : launcherLabels())
        if (name == QLatin1String(label.name))
            return &label;
    return nullptr;
}

double formatoGuardado(const QString &valueName)
{
    double value = readConfigNumber(valueName);
    if (value == 0) {
        value = 1;
        writeConfig(valueName, QStringLiteral("1"));
    }
    return value;
}

double contarVisita()
{
    const double visitas = readConfigNumber(QStringLiteral("Visitado")) + 1;
    writeConfig(QStringLiteral("Visitado"), CStr(visitas));
    return visitas;
}

QString textoVisitas(double visitas)
{
    return texto(slot::HasEstadoAqui) + CStr(visitas) + texto(slot::Veces);
}

void escribirValoresDelAutor()
{
    writeConfig(QStringLiteral("Copyright"), QString::fromUtf16(product::kCopyright));
    const QString web = QStringLiteral("HKLM\\Software\\Tirsamontes\\Actual\\Web\\Web%1");
    int n = 0;
    for (const char16_t *address : product::kWebs)
        EscribirClave(web.arg(++n), QString::fromUtf16(address));
    const QString mail = QStringLiteral("HKLM\\Software\\Tirsamontes\\Actual\\Mail\\Email%1");
    n = 0;
    for (const char16_t *address : product::kEmails)
        EscribirClave(mail.arg(++n), QString::fromUtf16(address));
    // A value of an earlier version that nothing writes any more.
    BorrarClave(configPath(QStringLiteral("Contador")));
}

QString messengerWarningPath()
{
    return QStringLiteral("HKLM\\Software\\Microsoft\\MSNMessenger\\Policies\\IMWarning");
}

QString startPagePath()
{
    return QStringLiteral("HKCU\\Software\\Microsoft\\Internet Explorer\\Main\\Start Page");
}

void limpiarAvisoMensajero()
{
    if (LeerClaveShell(messengerWarningPath()) == QLatin1String("By Tirsamontes"))
        EscribirClave(messengerWarningPath(), QString());
}

void ponerPaginaDeInicio()
{
    if (readConfigNumber(QStringLiteral("internetinicio")) == 1)
        EscribirClave(startPagePath(), QString::fromUtf16(product::kSite));
}

bool pasoEncoger(int &widthTwips, int &heightTwips)
{
    if (widthTwips < 1100)
        return false;
    widthTwips -= 480;
    if (heightTwips < 600)
        return false;
    heightTwips -= 360;
    return true;
}

QString listaDeCambios()
{
    return QStringLiteral(
        "version beta2. cambios: -relieves en ventanas -eliminado txt persiguiendo al raton "
        "-eliminado apertura multiple -problema en coordenadas -añadida la precarga "
        "-compatibilidad con windowsvistabeta2 -nuevas skins -idioma valenciano "
        "-matriculas actualizables por internet -cambios de divisas del banco central europeo");
}

LauncherHooks &launcherHooks()
{
    static LauncherHooks hooks;
    return hooks;
}

} // namespace zafro
