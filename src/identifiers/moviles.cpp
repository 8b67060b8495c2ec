#include "identifiers/moviles.h"

#include "runtime/convert.h"

#include <vector>

namespace zafro {

namespace {

struct Grupo {
    const char *nombre;
    quint32 color;
    std::vector<int> prefijos;
};

const Grupo kGrupos[] = {
    {"MoviStar", 0xFF0000, {606, 608, 609, 616, 618, 619, 620, 626, 628, 629, 630, 636, 639, 646,
                            647, 649, 650, 659, 660, 669, 676, 679, 680, 686, 689, 690, 696, 699}},
    {"Vodafone",
     255,
     {600, 607, 610, 617, 627, 637, 647, 661, 662, 666, 667, 670, 677, 678, 687, 697}},
    {"Amena", 65280, {605, 615, 625, 635, 645, 650, 651, 652, 653, 654, 655, 656, 657, 658, 665}},
    {"Moviline", 0xFF8080, {608, 689}},
    {"Xfera", 0x80FFFF, {622}},
    {"Dolphin Telecom", 0xFFFF00, {601}},
};

} // namespace

std::optional<Operadora> operadoraDePrefijo(const QString &prefijo)
{
    const double valor = Val(prefijo);
    for (const Grupo &grupo : kGrupos)
        for (int p : grupo.prefijos)
            if (valor == p)
                return Operadora{QString::fromUtf8(grupo.nombre), grupo.color};
    return std::nullopt;
}

} // namespace zafro
