// Writes pictures of the boxes, the calculator, the about box and a chart, for looking:
// quendal_desktop_services_gallery FOLDER
#include "desktop/boxes/box_window.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/qcustomplot_chart_painter.h"
#include "desktop/desktop_host.h"
#include "desktop/script/synthetic_input.h"
#include "host/calc_presets.h"
#include "support/conductivity_chart.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <algorithm>
#include <iostream>

using namespace quendal;

namespace {

BoxWindow* openBox() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return qobject_cast<const BoxWindow*>(window) != nullptr && window->isVisible();
    });
    return found != windows.end() ? qobject_cast<BoxWindow*>(*found) : nullptr;
}

// Pictures the box that opens next, after `typed` has been typed into it, and closes it.
void pictureNext(const QString& file, const QString& typed = {}) {
    QTimer::singleShot(50, qApp, [file, typed] {
        BoxWindow* box = openBox();
        typeText(*box, typed);
        box->grab().save(file);
        box->finish(2);
    });
}

void showBoxes(const QDir& folder) {
    MessageBox& boxes = CoreLib().MessageBox;
    pictureNext(folder.filePath("info.png"));
    boxes.Info("Diesen Titrationspunkt hast Du geschafft! Es ist der 1. Punkt", "Punktberechnung");
    pictureNext(folder.filePath("question.png"));
    boxes.YesNo("Willst Du die Aufgabe wirklich verlassen?", "Neu beginnen");
    pictureNext(folder.filePath("input.png"));
    boxes.Input("Gib Deinen Namen ein:", "Name?", CoreLib().SystemInfo.CurrentUser().Name);
    pictureNext(folder.filePath("alarm.png"));
    boxes.Alarm("Sieh Dir den Schritt noch einmal an!", "Achtung",
                "Ico\\32\\Computer\\Signs\\Help.ico");
    pictureNext(folder.filePath("about.png"));
    HostApp().Calculator.ShowAbout();
}

void showCalculator(const QDir& folder) {
    CalcPresets presets;
    presets.Init(8);
    for (const char* term :
         {"(0,014 - 0,01)/0,024", "0,004/0,024", "0,024/0,004", "(10^-14)^0.5"}) {
        presets.Add(" ", term);
    }
    presets.Finish();
    pictureNext(folder.filePath("calculator.png"), "(0,014-0,01)/0,024=log(0,167)=");
    HostApp().Calculator.Show(0, 0, 3000, 1500, presets);
}

void savePlot(const ChartView& view, QSizeF size, double scale, const QString& file) {
    plotChart(ChartSnapshot::of(view, 8), (size * scale).toSize(), scale).save(file);
}

void showChart(const QDir& folder) {
    ChartDocuments& documents = HostApp().Calculator.ChartFactory().Documents();
    ChartDocument& curve =
        documents.Open(HostApp().PathService.DataPath() + "phstark10.crv", 0, 0, 0);
    ChartSeries& mine = curve.AddSeries(1, "Meine pH-Rechnungen");
    mine.Style = {.LineVisible = false, .MarkerVisible = true, .MarkerStyle = Marker::FilledCircle};
    mine.Style.Colour = palette(12);
    for (const Point point : {Point{0, 0}, Point{5, 0.477}, Point{9, 1.279}, Point{10, 7}}) {
        mine.Data.Add(point.x, point.y);
    }
    savePlot(curve.View(), {900, 560}, 1, folder.filePath("chart.png"));
}

// A learner's conductivities of a strong acid with a strong base beside those of the curve file,
// point by point and with the break, as panel of a form and in a window.
void showConductivity(const QDir& folder) {
    QCustomPlotChartPainter painter;
    ChartDocument document(painter, "conductivity");
    test::ConductivityChart chart(document);
    constexpr QSizeF kPanel(428, 196);
    constexpr QSizeF kWindow(908, 520);
    for (const int height : {690, 768, 1080}) { // of the screen
        const double scale = height / 690.0;
        const auto file = [&](const char* what) {
            return folder.filePath(QString("conductivity-%1-%2.png").arg(what).arg(height));
        };
        chart.calculate(0);
        savePlot(chart.mine(), kPanel, scale, file("empty"));
        chart.calculate(8);
        savePlot(chart.mine(), kPanel, scale, file("open"));
        chart.calculate(21);
        savePlot(chart.mine(), kPanel, scale, file("break"));
        savePlot(chart.all(), kWindow, scale, file("compared"));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        std::cerr << "quendal_desktop_services_gallery FOLDER\n";
        return 2;
    }
    const DesktopHost host(application, CommandLine());
    const QDir folder(arguments[1]);
    showBoxes(folder);
    showCalculator(folder);
    showChart(folder);
    showConductivity(folder);
    return 0;
}
