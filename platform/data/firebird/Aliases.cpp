#include "platform/data/firebird/Aliases.h"

#include "platform/data/firebird/FbApi.h"

namespace fichario {

namespace {

constexpr unsigned char kQuestion[] = {isc_info_sql_select, isc_info_sql_describe_vars,
                                       isc_info_sql_sqlda_seq, isc_info_sql_relation_alias,
                                       isc_info_sql_describe_end};
constexpr size_t kAnswerBytes = 65000;

// The items of an answer: a tag, two bytes of length, the content; some tags stand alone.
class Answer {
  public:
    explicit Answer(const std::vector<unsigned char>& bytes) : FBytes(bytes) {}

    bool AtEnd() const {
        return FAt + 3 > FBytes.size() || FBytes[FAt] == isc_info_end || FBytes[FAt] == isc_info_truncated;
    }
    unsigned char Tag() { return FBytes[FAt++]; }
    QByteArrayView Content() {
        const size_t length = FBytes[FAt] | FBytes[FAt + 1] << 8;
        FAt += 2;
        const size_t start = std::min(FAt, FBytes.size());
        FAt += length;
        return {FBytes.data() + start, static_cast<qsizetype>(std::min(length, FBytes.size() - start))};
    }

  private:
    const std::vector<unsigned char>& FBytes;
    size_t FAt = 0;
};

size_t NumberIn(QByteArrayView content) {
    size_t number = 0;
    for (qsizetype i = content.size() - 1; i >= 0; --i)
        number = number << 8 | static_cast<unsigned char>(content[i]);
    return number;
}

}  // namespace

void ReadAliases(Firebird::ThrowStatusWrapper& status, Firebird::IStatement& statement, ColumnList& columns) {
    std::vector<unsigned char> bytes(kAnswerBytes);
    statement.getInfo(&status, sizeof kQuestion, kQuestion, static_cast<unsigned>(bytes.size()),
                      bytes.data());
    size_t column = 0;
    for (Answer answer(bytes); !answer.AtEnd();) {
        const unsigned char tag = answer.Tag();
        if (tag == isc_info_sql_select || tag == isc_info_sql_describe_end) continue;
        const QByteArrayView content = answer.Content();
        if (tag == isc_info_sql_sqlda_seq) column = NumberIn(content);
        if (tag == isc_info_sql_relation_alias && column >= 1 && column <= columns.size()) {
            columns[column - 1].BaseAlias = DecodeName(content).trimmed();
        }
    }
}

}  // namespace fichario
