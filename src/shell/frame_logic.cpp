#include "shell/frame_logic.h"

#include "runtime/convert.h"

namespace zafro {

QString tituloAnimado(int paso)
{
    const int gap = paso <= 6 ? 7 - paso : (paso >= 14 ? paso - 13 : 0);
    if (paso < 1 || paso > 19 || gap == 0)
        return QStringLiteral("Zafro Suite");
    const QString blanks(gap, QLatin1Char(' '));
    QString caption;
    for (QChar letter : QStringLiteral("Zafro"))
        caption += blanks + letter;
    caption += QString(gap + 1, QLatin1Char(' ')); // 2n + 1 between the words, with the gap below
    for (QChar letter : QStringLiteral("Suite"))
        caption += blanks + letter;
    return caption;
}

QString siguientePasoTitulo(const QString &pasoTitulo)
{
    int paso = static_cast<int>(Val(pasoTitulo)) + 1;
    if (paso == 20)
        paso = 1;
    return QString::number(paso);
}

int solooonumeros(int keyAscii, int)
{
    if (keyAscii == 8 || keyAscii == '.' || (keyAscii >= '0' && keyAscii <= '9'))
        return keyAscii;
    return 0;
}

} // namespace zafro
