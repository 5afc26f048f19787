#include "TarnwickHost/Remarks.h"

#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/model/runs/EvidenceCodec.h"

#include <QJsonDocument>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

QJsonDocument document(const auto& value) {
    JsonWriter json;
    write(json, value);
    return QJsonDocument::fromJson(json.json());
}

} // namespace

QJsonArray remarksJson(const std::vector<Remark>& remarks) {
    const EnglishTexts english;
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
