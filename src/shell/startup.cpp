#include "shell/startup.h"

#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <array>

namespace zafro {

QString versionText()
{
    return QStringLiteral("%1.%2.%3")
        .arg(ZAFRO_VERSION_MAJOR)
        .arg(ZAFRO_VERSION_MINOR)
        .arg(ZAFRO_VERSION_REVISION);
}

bool cargarIdiomaPorCodigo(double code)
{
    if (code == 1)
        CargarEspanol();
    else if (code == 2)
        CargarIngles();
    else if (code == 4)
        CargarValenciano();
    else
        return false;
    return true;
}

namespace {
struct IntroStep {
    int factor;
    const char16_t *text;
};
// kept: fixed Spanish in every language; nothing is loaded meanwhile.
constexpr std::array<IntroStep, 7> kIntroSteps{{
    {1, u"Cargando controladores"},
    {2, u"Cargando interface gráfica"},
    {5, u"Cargando configuración personalizada"},
    {7, u"Cargando submenús de aplicaciones"},
    {9, u"Cargando módulos de la suite"},
    {12, u"Cargando Zafro Global Services"},
    {16, u"Arrancando Zafro Suite"},
}};
constexpr int kIntroEnterFactor = 18;
} // namespace

QString introMensaje(int contador, int paso)
{
    for (const IntroStep &step : kIntroSteps)
        if (contador == step.factor * paso)
            return QString::fromUtf16(step.text);
    return {};
}

bool introEntra(int contador, int paso)
{
    return contador == kIntroEnterFactor * paso;
}

namespace {
void hideIfLoaded(const QString &name)
{
    if (QWidget *window = forms().find(name))
        window->hide();
}
} // namespace

void primeraVisitaIndex(double visitas)
{
    if (visitas > 1)
        return;
    guardarSkin(2);
    if (readConfigNumber(QStringLiteral("Visitado")) < 1)
        writeConfig(QStringLiteral("Visitado"), QStringLiteral("1"));
    forms().show(QStringLiteral("index"));
    hideIfLoaded(QStringLiteral("index"));
    hideIfLoaded(QStringLiteral("nuevos"));
}

} // namespace zafro
