// No two modules (a header and its source) depend on each other, directly or
// through others: the graph of local includes has no cycle.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <functional>

namespace {

using Graph = QHash<QString, QSet<QString>>;

// Module name -> modules its header or source includes.
Graph includeGraph(const QString& root)
{
    Graph graph;
    const QRegularExpression include(QStringLiteral("^#include \"([a-z0-9_]+)\\.h\""),
                                     QRegularExpression::MultilineOption);
    QDirIterator it(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString module = QFileInfo(path).completeBaseName();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        QSet<QString>& edges = graph[module];
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            const QString target = matches.next().captured(1);
            if (target != module) {
                edges.insert(target);
            }
        }
    }
    return graph;
}

// One cycle as "a -> b -> a", or empty.
QString findCycle(const Graph& graph)
{
    QHash<QString, int> state; // 1: on the path, 2: done
    QStringList path;
    std::function<QString(const QString&)> visit = [&](const QString& node) {
        state[node] = 1;
        path.append(node);
        for (const QString& next : graph.value(node)) {
            const int seen = graph.contains(next) ? state.value(next) : 2;
            const QString cycle = seen == 1   ? (path.mid(path.indexOf(next)) << next).join(QStringLiteral(" -> "))
                                  : seen == 0 ? visit(next)
                                              : QString();
            if (!cycle.isEmpty()) {
                return cycle;
            }
        }
        path.removeLast();
        state[node] = 2;
        return QString();
    };
    QStringList nodes = graph.keys();
    nodes.sort();
    for (const QString& node : qAsConst(nodes)) {
        const QString cycle = state.value(node) == 0 ? visit(node) : QString();
        if (!cycle.isEmpty()) {
            return cycle;
        }
    }
    return QString();
}

} // namespace

class TestIncludes : public QObject
{
    Q_OBJECT

private slots:
    void noCycles_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("program") << QStringLiteral("src");
        QTest::newRow("speech service") << QStringLiteral("speechd");
    }

    void noCycles()
    {
        QFETCH(QString, folder);
        const Graph graph = includeGraph(QStringLiteral(GLIMMER_SOURCE_DIR "/") + folder);
        QVERIFY(graph.size() > 5);
        const QString cycle = findCycle(graph);
        QVERIFY2(cycle.isEmpty(), qPrintable(cycle));
    }

    void aCycleIsFound()
    {
        const Graph graph{{QStringLiteral("a"), {QStringLiteral("b")}},
                          {QStringLiteral("b"), {QStringLiteral("c")}},
                          {QStringLiteral("c"), {QStringLiteral("a")}}};
        QCOMPARE(findCycle(graph), QStringLiteral("a -> b -> c -> a"));
    }
};

QTEST_GUILESS_MAIN(TestIncludes)
#include "test_includes.moc"
