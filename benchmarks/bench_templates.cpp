// Decoding of templates beside what one would use instead: replacing one code after the other, the template
// libraries that Debian has, and a bare script engine. All in one process, in turns.

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <benchmark/benchmark.h>
#include <ctemplate/template.h>
#include <mstch/mstch.hpp>

#include <QGuiApplication>
#include <QJSEngine>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Values = QMap<QString, QVariant>;

/// A text of about so many characters in which each of the codes stands about as often as the others.
QString templateText(int codes, int characters, const std::function<QString(int)> &code)
{
    const int places = std::max(codes, characters / 100);
    const QString filler = QString(u"Lorem ipsum dolor sit amet, consectetur adipiscing elit. "_s)
                               .repeated(characters / places / 57 + 1)
                               .left(std::max(1, characters / places - 9));
    QString text;
    text.reserve(characters + characters / 10);
    for (int place = 0; place < places; ++place)
        text += filler + code(place % codes);
    return text;
}

QString name(int index)
{
    return u"Code%1"_s.arg(index);
}

QString bracketed(int index)
{
    return u'[' + name(index) + u']';
}

QString braced(int index)
{
    return u"{{"_s + name(index) + u"}}"_s;
}

QString unescaped(int index)
{
    return u"{{{"_s + name(index) + u"}}}"_s;
}

Values valuesOf(int codes)
{
    Values values;
    for (int index = 0; index < codes; ++index)
        values.insert(bracketed(index), u"value %1"_s.arg(index));
    return values;
}

void decode(benchmark::State &state)
{
    const auto codes = static_cast<int>(state.range(0));
    const QString text = templateText(codes, static_cast<int>(state.range(1)), bracketed);
    const Values values = valuesOf(codes);
    TemplateEditorJSCodeReader reader;
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.readAsString(text, values));
    state.SetBytesProcessed(state.iterations() * text.size());
}

/// With values that come anew each time.
void decode_filled(benchmark::State &state)
{
    const auto codes = static_cast<int>(state.range(0));
    const QString text = templateText(codes, static_cast<int>(state.range(1)), bracketed);
    std::vector<std::pair<QString, QString>> given;
    for (int index = 0; index < codes; ++index)
        given.emplace_back(bracketed(index), u"value %1"_s.arg(index));
    TemplateEditorJSCodeReader reader;
    for (auto _ : state) {
        Values values;
        for (const auto &[code, value] : given)
            values.insert(code, value);
        benchmark::DoNotOptimize(reader.readAsString(text, values));
    }
}

/// The first time that a text is seen: nothing of it is known.
void decode_first(benchmark::State &state)
{
    const auto codes = static_cast<int>(state.range(0));
    const QString text = templateText(codes, static_cast<int>(state.range(1)), bracketed);
    const Values values = valuesOf(codes);
    for (auto _ : state) {
        state.PauseTiming();
        auto reader = std::make_unique<TemplateEditorJSCodeReader>();
        state.ResumeTiming();
        benchmark::DoNotOptimize(reader->readAsString(text, values));
        state.PauseTiming();
        reader.reset();
        state.ResumeTiming();
    }
}

void sequential(benchmark::State &state)
{
    const auto codes = static_cast<int>(state.range(0));
    const QString text = templateText(codes, static_cast<int>(state.range(1)), bracketed);
    const Values values = valuesOf(codes);
    for (auto _ : state) {
        QString result = text;
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            result.replace(value.key(), value->toString());
        benchmark::DoNotOptimize(result);
    }
}

using Dictionary = ctemplate::TemplateDictionary;

/// The template is parsed once, the dictionary is filled once or each time.
void expand(benchmark::State &state, bool fillsEachTime)
{
    const auto codes = static_cast<int>(state.range(0));
    const std::string text = templateText(codes, static_cast<int>(state.range(1)), braced).toStdString();
    const std::unique_ptr<ctemplate::Template> parsed(
        ctemplate::Template::StringToTemplate(text, ctemplate::DO_NOT_STRIP));
    std::vector<std::pair<std::string, std::string>> values;
    for (int index = 0; index < codes; ++index)
        values.emplace_back(name(index).toStdString(), u"value %1"_s.arg(index).toStdString());
    const auto filled = [&values] {
        auto dictionary = std::make_unique<Dictionary>("values");
        for (const auto &[key, value] : values)
            dictionary->SetValue(key, value);
        return dictionary;
    };
    auto dictionary = filled();
    for (auto _ : state) {
        if (fillsEachTime)
            dictionary = filled();
        std::string result;
        parsed->Expand(&result, dictionary.get());
        benchmark::DoNotOptimize(result);
    }
}

void by_ctemplate(benchmark::State &state)
{
    expand(state, false);
}
void by_ctemplate_filled(benchmark::State &state)
{
    expand(state, true);
}

void by_mstch(benchmark::State &state)
{
    const auto codes = static_cast<int>(state.range(0));
    const std::string text = templateText(codes, static_cast<int>(state.range(1)), unescaped).toStdString();
    mstch::map values;
    for (int index = 0; index < codes; ++index)
        values.emplace(name(index).toStdString(), u"value %1"_s.arg(index).toStdString());
    for (auto _ : state)
        benchmark::DoNotOptimize(mstch::render(text, values));
}

RowNode peptide(int index)
{
    RowNode row({kName, kSequence, kCharge, kMass});
    row.setDataAt(kName, u"T%1"_s.arg(index));
    row.setDataAt(kSequence, u"GPSVFPLAPSSK"_s);
    row.setDataAt(kCharge, 1 + index % 5);
    row.setDataAt(kMass, 500.25 + index);
    return row;
}

std::vector<RowNode> peptides(int count)
{
    std::vector<RowNode> rows;
    for (int index = 0; index < count; ++index)
        rows.push_back(peptide(index));
    return rows;
}

const QString kShort = u"<tr><td>[Name]</td><td>[Sequence]</td><td>[Charge]</td><td>[Mass]</td></tr>"_s;

void short_over_rows(benchmark::State &state)
{
    const std::vector<RowNode> rows = peptides(10000);
    for (auto _ : state)
        for (const RowNode &row : rows)
            benchmark::DoNotOptimize(AbstractTemplateEditor::decodeTEC(kShort, &row, {}));
}

/// Written by hand for this one template.
void short_by_hand(benchmark::State &state)
{
    const std::vector<RowNode> rows = peptides(10000);
    const auto &names = ColumnFriendlyName::getColumnFriendlyNames();
    for (auto _ : state) {
        for (const RowNode &row : rows) {
            QString text = kShort;
            for (const QString &column : {kCharge, kMass, kName, kSequence})
                text.replace(u'[' + column + u']', names.value(column).valueToString(row.getDataAt(column)));
            benchmark::DoNotOptimize(text);
        }
    }
}

const QString kCode = u"templateEditorCore.mz(inputParameters['[Mass]'], inputParameters['[Charge]'])"_s;

void script_piece(benchmark::State &state)
{
    const Values values{{u"[Mass]"_s, u"1045.5342"_s}, {u"[Charge]"_s, u"2"_s}};
    TemplateEditorJSCodeReader reader;
    const QString text = u"m/z <script>"_s + kCode + u"</script>"_s;
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.readAsString(text, values));
}

/// The same helper, parameters and code, in an engine that is not looked after.
void script_bare(benchmark::State &state)
{
    const Values values{{u"[Mass]"_s, u"1045.5342"_s}, {u"[Charge]"_s, u"2"_s}};
    QJSEngine engine;
    engine.globalObject().setProperty(
        u"templateEditorCore"_s,
        engine.evaluate(u"({ mz: function (m, z) { var v = (Number(m) + Number(z) * 1.007276466621) / "
                        "Math.abs(z); return isFinite(v) ? v.toFixed(4) : '' } })"_s));
    engine.globalObject().setProperty(u"inputParameters"_s, engine.toScriptValue(values));
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.evaluate(kCode).toString());
}

const QString kWithVariable = u"var n = 6; n * 7"_s;

void script_variable(benchmark::State &state)
{
    TemplateEditorJSCodeReader reader;
    const QString text = u"<script>"_s + kWithVariable + u"</script>"_s;
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.readAsString(text, {}));
}

void script_variable_bare(benchmark::State &state)
{
    QJSEngine engine;
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.evaluate(kWithVariable).toString());
}

/// One that may leave something behind, and so has an engine of its own.
void script_uncontained(benchmark::State &state)
{
    TemplateEditorJSCodeReader reader;
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.readAsString(u"<script>this.n = 6; this.n * 7</script>"_s, {}));
}

/// A decoding of a hundred pieces, in this program or in the helper process.
void script_hundred(benchmark::State &state)
{
    using Place = TemplateEditorJSEngine::ScriptPlace;
    TemplateEditorJSEngine::setScriptPlace(state.range(0) == 0 ? Place::InProgram : Place::HelperProcess);
    const Values values{{u"[Mass]"_s, u"1045.5342"_s}, {u"[Charge]"_s, u"2"_s}};
    TemplateEditorJSCodeReader reader;
    const QString text = QString(u"m/z <script>"_s + kCode + u"</script>"_s).repeated(100);
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.readAsString(text, values));
    TemplateEditorJSEngine::setScriptPlace(Place::InProgram);
}

void several_rows(benchmark::State &state)
{
    std::vector<RowNode> rows = peptides(static_cast<int>(state.range(0)));
    QList<RowNode *> pointers;
    for (RowNode &row : rows)
        pointers.append(&row);
    for (auto _ : state)
        benchmark::DoNotOptimize(AbstractTemplateEditor::decodeTEC(kShort, pointers, {}));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int codes : {10, 100, 1000})
        for (const int characters : {10000, 100000, 1000000})
            benchmark->Args({codes, characters});
    benchmark->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(decode)->Apply(sizes);
BENCHMARK(decode_first)->Apply(sizes);
BENCHMARK(sequential)->Apply(sizes);
BENCHMARK(by_ctemplate)->Apply(sizes);
BENCHMARK(decode_filled)->Apply(sizes);
BENCHMARK(by_ctemplate_filled)->Apply(sizes);
BENCHMARK(by_mstch)->Apply(sizes);
BENCHMARK(short_over_rows)->Unit(benchmark::kMillisecond);
BENCHMARK(short_by_hand)->Unit(benchmark::kMillisecond);
BENCHMARK(script_piece);
BENCHMARK(script_bare);
BENCHMARK(script_variable);
BENCHMARK(script_variable_bare);
BENCHMARK(script_uncontained);
BENCHMARK(script_hundred)->Arg(0)->Arg(1)->UseRealTime();
BENCHMARK(several_rows)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    mstch::config::escape = [](const std::string &text) { return text; };
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
