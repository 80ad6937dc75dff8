#include "sql/parse/PalavrasReservadas.h"

#include <iterator>

namespace {

// clang-format off
constexpr QStringView kTable[] = {
    u"ACTION", u"ACTIVE", u"ADD", u"ADMIN", u"AFTER", u"ALL", u"ALTER", u"AND", u"ANY", u"AS", u"ASC",
    u"ASCENDING", u"AT", u"AUTO", u"AUTODDL", u"AVG", u"BASE_NAME", u"BASED", u"BASENAME", u"BEFORE",
    u"BEGIN", u"BETWEEN", u"BLOB", u"BLOBEDIT", u"BUFFER", u"BY", u"CACHE", u"CASCADE", u"CAST", u"CHAR",
    u"CHAR_LENGTH", u"CHARACTER", u"CHARACTER_LENGTH", u"CHECK", u"CHECK_POINT_LEN", u"CHECK_POINT_LENGTH",
    u"CLOSE", u"COLLATE", u"COLLATION", u"COLUMN", u"COMMIT", u"COMMITTED", u"COMPILETIME", u"COMPUTED",
    u"CONDITIONAL", u"CONNECT", u"CONSTRAINT", u"CONTAINING", u"CONTINUE", u"COUNT", u"CREATE", u"CSTRING",
    u"CURRENT", u"CURSOR", u"DATABASE", u"DATE", u"DEBUG", u"DEC", u"DECIMAL", u"DECLARE", u"DEFAULT",
    u"DELETE", u"DESC", u"DESCENDING", u"DESCRIBE", u"DESCRIPTOR", u"DISCONNECT", u"DISPLAY", u"DISTINCT",
    u"DO", u"DOMAIN", u"DOUBLE", u"DROP", u"ECHO", u"EDIT", u"ELSE", u"END", u"ENTRY_POINT", u"ESCAPE",
    u"EVENT", u"EXCEPTION", u"EXECUTE", u"EXISTS", u"EXIT", u"EXTERN", u"EXTERNAL", u"EXTRACT", u"FETCH",
    u"FILE", u"FILTER", u"FLOAT", u"FOR", u"FOREIGN", u"FOUND", u"FREE_IT", u"FROM", u"FULL", u"FUNCTION",
    u"GDSCODE", u"GEN_ID", u"GENERATOR", u"GLOBAL", u"GOTO", u"GRANT", u"GROUP", u"GROUP_COMMIT_",
    u"GROUP_COMMIT_WAIT", u"HAVING", u"HELP", u"IF", u"IMMEDIATE", u"IN", u"INACTIVE", u"INDEX", u"INDICATOR",
    u"INIT", u"INNER", u"INPUT", u"INPUT_TYPE", u"INSERT", u"INT", u"INTEGER", u"INTO", u"IS", u"ISOLATION",
    u"ISQL", u"JOIN", u"KEY", u"LC_MESSAGES", u"LC_TYPE", u"LEFT", u"LENGTH", u"LENGTH", u"LEV", u"LEVEL",
    u"LIKE", u"LOG_BUF_SIZE", u"LOG_BUFFER_SIZE", u"LOGFILE", u"LONG", u"MANUAL", u"MAX", u"MAX_SEGMENT",
    u"MAXIMUM", u"MAXIMUM_SEGMENT", u"MENT", u"MERGE", u"MESSAGE", u"MIN", u"MINIMUM", u"MODULE_NAME",
    u"NAMES", u"NATIONAL", u"NATURAL", u"NCHAR", u"NO", u"NOAUTO", u"NOT", u"NULL", u"NUM_LOG_BUFFERS",
    u"NUM_LOG_BUFS", u"NUMERIC", u"OCTET_LENGTH", u"OF", u"ON", u"ONLY", u"OPEN", u"OPTION", u"OR", u"ORDER",
    u"OUTER", u"OUTPUT", u"OUTPUT_TYPE", u"OVERFLOW", u"PAGE", u"PAGE_SIZE", u"PAGES", u"PARAMETER",
    u"PASSWORD", u"PLAN", u"POSITION", u"POST_EVENT", u"PRECISION", u"PREPARE", u"PRIMARY", u"PRIVILEGES",
    u"PROCEDURE", u"PROTECTED", u"PUBLIC", u"QUIT", u"RAW_PARTITIONS", u"READ", u"REAL", u"RECORD_VERSION",
    u"REFERENCES", u"RELEASE", u"RESERV", u"RESERVING", u"RESTRICT", u"RETAIN", u"RETURN",
    u"RETURNING_VALUES", u"RETURNS", u"REVOKE", u"RIGHT", u"ROLE", u"ROLLBACK", u"RUNTIME", u"SCHEMA",
    u"SEGMENT", u"SELECT", u"SET", u"SHADOW", u"SHARED", u"SHELL", u"SHOW", u"SINGULAR", u"SIZE", u"SMALLINT",
    u"SNAPSHOT", u"SOME", u"SORT", u"SQL", u"SQLCODE", u"SQLERROR", u"SQLWARNING", u"STABILITY", u"STARTING",
    u"STARTS", u"STATE", u"STATIC", u"STATISTICS", u"SUB_TYPE", u"SUM", u"SUSPEND", u"TABLE", u"TERMINATOR",
    u"THEN", u"TO", u"TRANSACTION", u"TRANSLATE", u"TRANSLATION", u"TRIGGER", u"TRIM", u"UNCOMMITTED",
    u"UNION", u"UNIQUE", u"UPDATE", u"UPPER", u"USER", u"USING", u"VALUE", u"VALUES", u"VARCHAR", u"VARIABLE",
    u"VARYING", u"VERSION", u"VIEW", u"WAIT", u"WAIT_TIME", u"WHEN", u"WHENEVER", u"WHERE", u"WHILE", u"WITH",
    u"WORK", u"WRITE"};
// clang-format on
static_assert(std::size(kTable) == kReservedWords);

}  // namespace

QStringView ReservedWord(int index) {
    return kTable[index];
}
