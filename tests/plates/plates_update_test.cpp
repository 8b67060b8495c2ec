#include "../online/http_fixture.h"
#include "fakes.h"
#include "online/fetch_cycle.h"
#include "plates/matimportacion_window.h"
#include "plates/matriculas.h"
#include "plates/matriculas_window.h"
#include "plates/plates_fetch.h"
#include "plates/plates_update.h"
#include "plates_data.h"
#include "runtime/runtime_error.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;
using test::HttpFixture;

const QString kSub = QStringLiteral("Matriculas");

// A plates document in the server's layout: declaration 1, root 2, a header of two
// elements with a text each 3-7, two more elements 8-9, a comment 10, the identity
// 11 and the rows from 12.
struct Documento {
    QByteArray identity = "Matriculas Zafro";
    QList<QPair<QByteArray, QByteArray>> rows;
    int sinCochesEn = -1; // a row index whose coches goes missing

    // Every month at the same count, then the data's date.
    static Documento mesesIguales(int coches, const char *dia, const char *mes, const char *ano)
    {
        Documento d;
        for (int k = 0; k < matriculas::kMeses; ++k)
            d.rows << qMakePair(matriculas::nombreValorMes(k).toLatin1(),
                                QByteArray::number(coches));
        d.rows << qMakePair(QByteArray("act1"), QByteArray(dia))
               << qMakePair(QByteArray("act2"), QByteArray(mes))
               << qMakePair(QByteArray("act3"), QByteArray(ano));
        return d;
    }

    QByteArray xml() const
    {
        QByteArray x = "<?xml version=\"1.0\"?>\n<m>\n <c>\n  <t>Zafro</t>\n  <f>T</f>\n </c>\n"
                       " <a/>\n <b/>\n <!-- note -->\n <i zafro=\"" +
                       identity + "\"/>\n";
        for (int i = 0; i < rows.size(); ++i) {
            x += " <d mes=\"" + rows[i].first + "\"";
            if (i != sinCochesEn)
                x += " coches=\"" + rows[i].second + "\"";
            x += "/>\n";
        }
        return x + "</m>\n";
    }
};

// A stored value without the end mark the store's reads keep.
QString stored(const QString &name)
{
    QString value = readConfig(name, kSub);
    if (value.endsWith(QChar(0)))
        value.chop(1);
    return value;
}

QStringList messageTexts()
{
    QStringList texts;
    for (const auto &m : fakes().dialogs.messages)
        texts << m.text;
    return texts;
}

class PlatesUpdateTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
        fakes().clock.current = QDateTime(QDate(2009, 6, 15), QTime(10, 0));
        fakes().desktop.folder = dir_.path();
        setSourceAddress(FetchUserKind::Plates, server_.url());
    }
    void TearDown() override { setSourceAddress(FetchUserKind::Plates, QString()); }

    // The old data set and date, so that nothing starts by itself.
    static void datosAntiguos()
    {
        test::escribirDatos2002();
        test::escribirFecha("1", "2", "2003");
    }

    MatriculasWindow *openPlates()
    {
        plates_ = qobject_cast<MatriculasWindow *>(
            forms().show(QStringLiteral("matriculasselect"), [](QWidget *w) {
                w->findChild<QLabel *>(QStringLiteral("ls"))->setText(QStringLiteral("1"));
            }));
        EXPECT_NE(plates_, nullptr);
        return plates_;
    }

    template <typename T = QWidget> T *get(QWidget *window, const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString label(QWidget *window, const char *name) const
    {
        return get<QLabel>(window, name)->text();
    }

    QString calculate(const QString &digits, const QString &letters)
    {
        get<QLineEdit>(plates_, "aText1")->setText(digits);
        const char *boxes[] = {"aText5", "aText6", "aText7"};
        for (int i = 0; i < 3; ++i)
            get<QLineEdit>(plates_, boxes[i])->setText(letters.mid(i, 1));
        QTest::mouseClick(get(plates_, "aCommand1"), Qt::LeftButton);
        return label(plates_, "aLabel5");
    }

    QString writeFile(const QByteArray &content, const QString &name)
    {
        QFile file(dir_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    // The cycle's steps without their seconds: up to the parse tick, which the
    // caller runs.
    static void hastaElAnalisis(FetchCycle &cycle)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return cycle.readyState() == 4; }, 5000));
        cycle.pollTick();
        cycle.settleTick();
        ASSERT_TRUE(cycle.verifyTimer()->isActive()) << "no node at the identity position";
        cycle.verifyTick();
    }

    QTemporaryDir dir_;
    HttpFixture server_;
    MatriculasWindow *plates_ = nullptr;
};

// --- The server update ---------------------------------------------------------------

TEST_F(PlatesUpdateTest, AServerUpdateStoresTheMonthsAndRedatesTheShowingPaneAtOnce)
{
    datosAntiguos();
    // 100000 a month: 3190 BRJ (2463190) falls in the 25th month, September 2002.
    server_.body = Documento::mesesIguales(100000, "5", "3", "2011").xml();
    openPlates();
    QTest::mouseClick(get(plates_, "Command5"), Qt::LeftButton);
    ASSERT_EQ(calculate(QStringLiteral("3190"), QStringLiteral("BRJ")),
              QStringLiteral("Diciembre del 2001"));

    QTest::mouseClick(get(plates_, "Command6"), Qt::LeftButton);
    QStringList seen;
    const bool done = QTest::qWaitFor(
        [&] {
            const QString t = label(plates_, "Labeln9");
            if (seen.isEmpty() || seen.last() != t)
                seen << t;
            return t.startsWith(QStringLiteral("Actualizado a "));
        },
        8000);
    ASSERT_TRUE(done) << seen.join(u'|').toStdString();

    EXPECT_EQ(server_.requests, 1);
    const QStringList tail = seen.mid(seen.size() - 3);
    EXPECT_EQ(tail, (QStringList{QStringLiteral("Conexión establecida"),
                                 QStringLiteral("¡Matrículas actualizadas!"),
                                 QStringLiteral("Actualizado a 05/03/2011")}));
    for (int k = 0; k < matriculas::kMeses; ++k)
        ASSERT_EQ(stored(matriculas::nombreValorMes(k)), QStringLiteral("100000")) << k;
    EXPECT_EQ(stored(QStringLiteral("act1")), QStringLiteral("5"));
    EXPECT_EQ(stored(QStringLiteral("act3")), QStringLiteral("2011"));
    EXPECT_EQ(stored(QStringLiteral("entrado")), QStringLiteral("1"));
    EXPECT_FALSE(get<QTimer>(plates_, "Timer1")->isActive());
    EXPECT_EQ(get<QLabel>(plates_, "Labeln3")->text(), QStringLiteral("Matriculas Zafro"));
    EXPECT_TRUE(messageTexts().isEmpty());

    // The pane was reloaded by the step after the closing work.
    EXPECT_EQ(label(plates_, "aLabel7"), QStringLiteral("12400000"));
    EXPECT_EQ(calculate(QStringLiteral("3190"), QStringLiteral("BRJ")),
              QStringLiteral("Septiembre del 2002"));
}

TEST_F(PlatesUpdateTest, WithAnotherPaneShowingTheDateChangesAndTheTableIsLeft)
{
    datosAntiguos();
    server_.body = Documento::mesesIguales(100000, "5", "3", "2011").xml();
    openPlates();
    QTest::mouseClick(get(plates_, "Command5"), Qt::LeftButton);
    QTest::mouseClick(get(plates_, "Command1"), Qt::LeftButton);
    plates_->command6Click();
    DescargaMatriculas *descarga = platesUpdateOf(*plates_);
    ASSERT_NE(descarga, nullptr);
    hastaElAnalisis(*descarga->cycle());
    descarga->cycle()->parseTick();
    EXPECT_TRUE(descarga->timer1()->isActive());
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("¡Matrículas actualizadas!"));
    platesTimer1Tick(*plates_);
    EXPECT_FALSE(descarga->timer1()->isActive());
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("Actualizado a 05/03/2011"));
    EXPECT_EQ(label(plates_, "aLabel7"), QStringLiteral("4415896"))
        << "the current-format pane is not showing, so its table is not read again";
}

TEST_F(PlatesUpdateTest, EnglishPutsTheMonthFirstAndADocumentOfDatesOnlyKeepsTheMonths)
{
    datosAntiguos();
    CargarIngles();
    Documento d;
    d.rows << qMakePair(QByteArray("act1"), QByteArray("12"))
           << qMakePair(QByteArray("act2"), QByteArray("7"))
           << qMakePair(QByteArray("act3"), QByteArray("2010"))
           << qMakePair(QByteArray("ninguno"), QByteArray("3.5"));
    server_.body = d.xml();
    openPlates();
    plates_->command6Click();
    DescargaMatriculas *descarga = platesUpdateOf(*plates_);
    hastaElAnalisis(*descarga->cycle());
    descarga->cycle()->parseTick();
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("Plates updated!"));
    platesTimer1Tick(*plates_);
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("Updated to 07/12/2010"));
    EXPECT_EQ(stored(QStringLiteral("ninguno")), QStringLiteral("3.5"));
    EXPECT_EQ(matriculas::cargarAcumulados()[matriculas::kMeses - 1], 4415896.0);
}

TEST_F(PlatesUpdateTest, AnotherIdentityIsRefusedWithTheMessageAndNothingIsStored)
{
    Documento d = Documento::mesesIguales(100000, "5", "3", "2011");
    d.identity = "matriculas zafro";
    server_.body = d.xml();
    openPlates();
    plates_->command6Click();
    DescargaMatriculas *descarga = platesUpdateOf(*plates_);
    hastaElAnalisis(*descarga->cycle());
    EXPECT_EQ(messageTexts(), QStringList{QStringLiteral(
                                  "No ha sido posible la conexión con el servidor; comprueba "
                                  "que estas conectado a internet!")});
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("No conectado al servidor"));
    // The box keeps its lines with plain line feeds.
    EXPECT_EQ(get<QPlainTextEdit>(plates_, "Textn2")->toPlainText(),
              FetchCycle::failureText().replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    EXPECT_FALSE(get(plates_, "Textn2")->isVisible());
    EXPECT_FALSE(descarga->cycle()->parseTimer()->isActive());
    EXPECT_TRUE(stored(QStringLiteral("200009")).isEmpty());
    EXPECT_FALSE(matriculas::datosEntrados());
}

TEST_F(PlatesUpdateTest, ARowWithoutItsCountIsARunTimeErrorAfterTheRowsBeforeIt)
{
    Documento d = Documento::mesesIguales(100000, "5", "3", "2011");
    d.sinCochesEn = 2; // the third month, November 2000
    server_.body = d.xml();
    openPlates();
    plates_->command6Click();
    DescargaMatriculas *descarga = platesUpdateOf(*plates_);
    hastaElAnalisis(*descarga->cycle());
    EXPECT_THROW(descarga->cycle()->parseTick(), RuntimeError);
    EXPECT_EQ(stored(QStringLiteral("200010")), QStringLiteral("100000"));
    EXPECT_TRUE(stored(QStringLiteral("200011")).isEmpty())
        << "a row is stored whole or not at all";
    EXPECT_TRUE(stored(QStringLiteral("200012")).isEmpty());
    EXPECT_FALSE(matriculas::datosEntrados());
    EXPECT_FALSE(descarga->timer1()->isActive());
    EXPECT_NE(label(plates_, "Labeln9"), QStringLiteral("¡Matrículas actualizadas!"));
}

TEST_F(PlatesUpdateTest, EveryStartGoesToTheSameCycleAndAnUnreachableServerStaysSilent)
{
    server_.mode = HttpFixture::Mode::NotFound;
    openPlates();
    plates_->command6Click();
    DescargaMatriculas *descarga = platesUpdateOf(*plates_);
    plates_->command6Click();
    EXPECT_EQ(platesUpdateOf(*plates_), descarga);
    EXPECT_EQ(plates_->findChildren<QTimer *>(QStringLiteral("Timern2")).size(), 1);
    FetchCycle &cycle = *descarga->cycle();
    ASSERT_TRUE(QTest::qWaitFor([&] { return cycle.readyState() == 4; }, 5000));
    cycle.pollTick();
    cycle.settleTick();
    EXPECT_FALSE(cycle.verifyTimer()->isActive());
    EXPECT_TRUE(messageTexts().isEmpty());
    EXPECT_FALSE(matriculas::datosEntrados());
}

// --- The import window ---------------------------------------------------------------

class PlatesImportTest : public PlatesUpdateTest {
protected:
    MatimportacionWindow *openImport()
    {
        plates_->menuimportarClick();
        auto *w = findForm<MatimportacionWindow>(QStringLiteral("matimportacion"));
        EXPECT_NE(w, nullptr);
        return w;
    }
};

TEST_F(PlatesImportTest, AnImportStoresTheDataButThePaneDatesByTheOldTableUntilOpenedAgain)
{
    datosAntiguos();
    const QString path = writeFile(Documento::mesesIguales(100000, "5", "3", "2011").xml(),
                                   QStringLiteral("zafromdata.zfx"));
    fakes().desktop.files.insert(path);
    openPlates();
    QTest::mouseClick(get(plates_, "Command5"), Qt::LeftButton);
    MatimportacionWindow *import = openImport();
    ASSERT_NE(import, nullptr);
    EXPECT_EQ(get<QLineEdit>(import, "Text1")->text(), path);
    EXPECT_EQ(get<QPushButton>(import, "Command1")->text(), QStringLiteral("Importar"));
    EXPECT_TRUE(label(import, "Label1").startsWith(QStringLiteral("Para importar los datos")));

    QTest::mouseClick(get(import, "Command1"), Qt::LeftButton);
    EXPECT_EQ(label(import, "Labeln9"), QStringLiteral("Actualizando..."));
    hastaElAnalisis(*import->descarga()->cycle());
    import->descarga()->cycle()->parseTick();
    EXPECT_EQ(label(import, "Labeln9"), QStringLiteral("¡Matrículas actualizadas!"));
    EXPECT_EQ(stored(QStringLiteral("201012")), QStringLiteral("100000"));
    EXPECT_TRUE(import->descarga()->timer1()->isActive());
    QPointer<MatimportacionWindow> alive = import;
    import->timer1Timer();
    EXPECT_EQ(label(import, "Labeln9"), QStringLiteral("Actualizado a 05/03/2011"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(alive.isNull()) << "the import window unloads itself";
    EXPECT_EQ(forms().find(QStringLiteral("matriculasselect")), plates_);
    EXPECT_EQ(label(plates_, "Labeln9"), QStringLiteral("Última actualización: 05/03/2011"));

    EXPECT_EQ(calculate(QStringLiteral("3190"), QStringLiteral("BRJ")),
              QStringLiteral("Diciembre del 2001"));
    QTest::mouseClick(get(plates_, "Command5"), Qt::LeftButton);
    EXPECT_EQ(calculate(QStringLiteral("3190"), QStringLiteral("BRJ")),
              QStringLiteral("Septiembre del 2002"));
}

TEST_F(PlatesImportTest, AMissingFileGetsTheMessageAndStartsNothing)
{
    openPlates();
    MatimportacionWindow *import = openImport();
    ASSERT_NE(import, nullptr);
    get<QLineEdit>(import, "Text1")->setText(dir_.filePath(QStringLiteral("no.zfx")));
    QTest::mouseClick(get(import, "Command1"), Qt::LeftButton);
    EXPECT_EQ(messageTexts(),
              QStringList{QStringLiteral(
                  "El fichero seleccionado no existe... Por favor, asegúrate de haber "
                  "introducido correctamente la ruta. Si no tienes el archivo de datos actualiza "
                  "directamente o entra en http://www.tirsamontes.com")});
    EXPECT_TRUE(label(import, "Labeln9").isEmpty());
    EXPECT_EQ(import->descarga()->cycle()->document(), nullptr);
    EXPECT_FALSE(import->descarga()->cycle()->pollTimer()->isActive());
}

TEST_F(PlatesImportTest, AWildcardThatFindsAFileCountsAsFound)
{
    writeFile("<x/>", QStringLiteral("datos.zfx"));
    EXPECT_TRUE(existeEntrada(dir_.filePath(QStringLiteral("*.zfx"))));
    EXPECT_TRUE(existeEntrada(dir_.filePath(QStringLiteral("dat?s.zfx"))));
    EXPECT_FALSE(existeEntrada(dir_.filePath(QStringLiteral("*.xml"))));
    EXPECT_FALSE(existeEntrada(dir_.filePath(QStringLiteral("datos.zfx"))))
        << "without a wildcard the platform's own look-up decides";
}

// --- The bundled document ----------------------------------------------------------------

TEST_F(PlatesImportTest, TheBundledDocumentImportsAndMeetsThePublicMilestones)
{
    const QString path = QStringLiteral(ZAFRO_SERVER_DIR "/tirsamontes/matriculas4525.xml");
    fakes().desktop.files.insert(path);
    openPlates();
    MatimportacionWindow *import = openImport();
    get<QLineEdit>(import, "Text1")->setText(path);
    QTest::mouseClick(get(import, "Command1"), Qt::LeftButton);
    hastaElAnalisis(*import->descarga()->cycle());
    import->descarga()->cycle()->parseTick();
    EXPECT_TRUE(matriculas::datosEntrados());
    EXPECT_TRUE(messageTexts().isEmpty());

    const matriculas::Acumulados totals = matriculas::cargarAcumulados();
    for (int m = 0; m < 12; ++m)
        EXPECT_EQ(totals[std::size_t(16 + m)], test::kTotales2002[m]) << "2002 month " << m + 1;
    // First plate of a letter series and the month it was reached, from September 2000.
    const struct {
        double ordinal;
        int month;
    } milestones[] = {
        {4000000, 25}, {8000000, 48}, {12000000, 68}, {16000000, 89}, {20000000, 123}};
    for (const auto &m : milestones)
        EXPECT_EQ(matriculas::mesDelOrdinal(totals, m.ordinal), m.month) << m.ordinal;
    EXPECT_LT(totals[122], 20000000.0);
    EXPECT_LT(totals[123], 20100000.0);
    // August is the low month of every year.
    for (int k = 11; k < matriculas::kMeses; k += 12)
        EXPECT_LT(totals[std::size_t(k)] - totals[std::size_t(k - 1)],
                  totals[std::size_t(k - 1)] - totals[std::size_t(k - 2)])
            << matriculas::nombreValorMes(k).toStdString();
    EXPECT_FALSE(stored(QStringLiteral("act3")).isEmpty());
}

} // namespace
} // namespace zafro
