// The Comprehensive Reading from the click to the painted pane, against putting the same
// text into the same kind of pane at once and painting it.

#include "core/clock.h"
#include "shell/app.h"
#include "shell/frm_main.h"
#include "shell/input_page.h"
#include "shell/name_box.h"
#include "shell/report_page.h"
#include "shell/rich_text_box.h"
#include "shell/topic_tree_view.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

frmMain *form = nullptr;

QTreeWidgetItem *ComprehensiveNode() {
    QTreeWidgetItem *numerology = form->TV->Node(modReadings::NodePosition::Numerology);
    return numerology->child(numerology->childCount() - 1);
}

void ComprehensiveReadingFromClickToPaint(benchmark::State &state) {
    for (auto _ : state) {
        form->TV_NodeClick(ComprehensiveNode());
        form->Picture2->RTB->repaint();
    }
}
BENCHMARK(ComprehensiveReadingFromClickToPaint)->Unit(benchmark::kMillisecond);

void FloorSameTextAtOnce(benchmark::State &state) {
    form->TV_NodeClick(ComprehensiveNode());
    const QString text = form->Picture2->RTB->toPlainText();
    QTextEdit pane;
    pane.setReadOnly(true);
    pane.setFont(form->Picture2->RTB->font());
    pane.resize(form->Picture2->RTB->size());
    pane.show();
    for (auto _ : state) {
        pane.setPlainText(text);
        pane.moveCursor(QTextCursor::End);
        pane.moveCursor(QTextCursor::Start);
        pane.repaint();
    }
}
BENCHMARK(FloorSameTextAtOnce)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[]) {
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    App::Identify();
    const modReadings::FixedClock clock(std::chrono::year(2026) / 11 / 16);

    frmMain window;
    form = &window;
    if (!window.Form_Load())
        return 1;
    window.show();
    window.Picture1->txtFirstName->setText(QStringLiteral("CLARA"));
    window.Picture1->txtLastName->setText(QStringLiteral("WINTER"));
    window.cmdNext_Click();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
