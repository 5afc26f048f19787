#include "TarnwickHost/Remarks.h"

#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/runs/EvidenceCodec.h"

#include <QJsonDocument>

#include <algorithm>
#include <functional>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

/// As wide as the labels above the list.
constexpr int weightColumns = 14;

QString weightMark(RemarkWeight weight) {
    return (weight == RemarkWeight::invalid ? "! " : "") + remarkWeightWord(weight);
}

QJsonDocument document(const auto& value) {
    JsonWriter json;
    write(json, value);
    return QJsonDocument::fromJson(json.json());
}

} // namespace

QString invalidMark() { return weightMark(RemarkWeight::invalid); }

QString remarkList(const std::vector<Remark>& remarks, std::int64_t randomBlock, int columns) {
    std::vector<Remark> worstFirst = remarks;
    std::ranges::stable_sort(worstFirst, std::greater(), &Remark::weight);
    QString list;
    for (const Remark& remark : worstFirst) {
        QStringList sentences{remarkSentence(remark), remarkAdvice(remark)};
        if (sentences.front().isEmpty()) // numbers of a file that mean nothing
            continue;
        if (remark.test)
            sentences.prepend(title(*remark.test, randomBlock) + ':');
        list += labelled(weightMark(remark.weight).leftJustified(weightColumns),
                         sentences.join(' ').split(' ', Qt::SkipEmptyParts), " ", columns);
    }
    return list.isEmpty() ? list : "\nAbout these figures\n" + list;
}

QJsonArray remarksJson(const std::vector<Remark>& remarks) {
    QJsonArray array;
    for (const Remark& remark : remarks) {
        QJsonObject object = document(std::vector{remark}).array().first().toObject();
        object.insert("text", remarkSentence(remark));
        if (const QString advice = remarkAdvice(remark); !advice.isEmpty())
            object.insert("advice", advice);
        array.append(object);
    }
    return array;
}

QJsonObject evidenceJson(const RunEvidence& evidence) { return document(evidence).object(); }

} // namespace TarnwickHost
