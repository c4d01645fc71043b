#include "tool/command_table.h"

namespace varno::tool {

namespace {

Parameter argument(const char* name, Stored stored, const char* description) {
    return {.name = name, .stored = stored, .description = description, .required = true};
}
Parameter option(const char* name, const char* value, Stored stored, const char* description) {
    return {.name = name, .stored = stored, .description = description, .value = value};
}
Parameter flag(const char* name, bool Request::*stored, const char* description) {
    return {.name = name, .stored = stored, .description = description};
}

std::string eitherListOrSvg(const Request& request) {
    return request.list != request.target.empty() ? "ange antingen --list eller --svg UT." : "";
}

std::string runComplaint(const Request& request) {
    if (request.jobs < 0) return "valet --jobs väntar ett antal, 1 eller fler.";
    // A time beyond this does not fit the clock.
    constexpr double longest = 1e9;
    return request.timeout >= 0 && request.timeout <= longest ? ""
                                                              : "valet --timeout väntar ett antal sekunder.";
}

std::vector<CommandRow> makeTable() {
    const auto file = argument("FIL", &Request::file, "Filen som läses");
    const auto files = argument("FIL", &Request::files, "Filerna som läses");
    const auto list = flag("--list", &Request::list, "Skriver det som ritas, ett JSON-objekt per rad");
    const auto svg = option("--svg", "UT", &Request::target, "Ritar till en SVG-fil");
    return {
        {.name = "show",
         .description = "Visar indata i läsbar form",
         .run = printReport,
         .parameters = {file},
         .examples = {{"varnotool show HUS1.IND", "visar fallet"}}},
        {.name = "check",
         .description = "Kontrollerar indatafiler",
         .run = checkCases,
         .parameters = {files, flag("--json", &Request::json, "Skriver det som hittas som JSON")},
         .examples = {{"varnotool check *.IND", "en rad om varje sak att se efter"},
                      {"varnotool check --json HUS1.IND", "detsamma för ett skript"}},
         .remark = "Säger allt som programmet säger om en fil som öppnas, och det som är orimligt i den."},
        {.name = "diff",
         .description = "Jämför indata i två filer",
         .run = compareCases,
         .parameters = {file, {.name = "FIL2", .stored = &Request::other, .description = "Den andra filen"}},
         .examples = {{"varnotool diff HUS1.IND HUS2.IND", "de indata som skiljer sig åt"},
                      {"git config diff.varno.textconv \"varnotool diff\"",
                       "git diff visar indata i stället för kolumner"}},
         .remark = "Med en enda fil skrivs alla dess indata, ett per rad."},
        {.name = "json",
         .description = "Skriver en indatafil som JSON",
         .run = printJson,
         .parameters = {file, flag("--used", &Request::used, "Utelämnar det som inte används")},
         .examples = {{"varnotool json --used HUS1.IND", "det som används, fack och stöd efter nummer"}}},
        {.name = "write",
         .description = "Skriver en indatafil efter ett JSON-objekt",
         .run = writeCase,
         .parameters = {argument("JSON", &Request::file, "Filen med objektet"),
                        argument("UT", &Request::target, "Indatafilen som skrivs"),
                        option("--base", "FIL", &Request::base,
                               "Indatafilen som har de värden som objektet inte nämner")},
         .examples = {{"echo '{\"spv\": {\"2\": 6.4}}' | varnotool write - V64.IND --base HUS1.IND",
                       "HUS1 med en annan spännvidd i fack 2"}},
         .remark = "Motsatsen till json, i båda dess former. Fält som inte finns nekas. Ett fall utan eget "
                   "namn får filens."},
        {.name = "run",
         .description = "Beräknar fall utan fönster, vart och ett i en egen mapp",
         .run = runCases,
         .parameters = {files,
                        {.name = "--engine",
                         .stored = &Request::engine,
                         .description = "Beräkningsmotorn, med sina argument",
                         .value = "KOMMANDO",
                         .required = true},
                        option("--jobs", "N", &Request::jobs,
                               "Beräkningar på en gång, annars så många som datorn har kärnor"),
                        option("--out", "MAPP", &Request::folder,
                               "Mappen för fallens mappar, annars den Du står i"),
                        option("--timeout", "S", &Request::timeout,
                               "Sekunder som ett fall får ta, annars hur länge som helst")},
         .examples = {{"varnotool run *.IND --engine ./varnowb --out resultat", "alla fall i mappen"},
                      {"varnotool run HUS1.IND --engine \"wine varnowb.exe\" --timeout 60",
                       "med en motor för Windows, en minut"}},
         .remark = "Resultatet av HUS1.IND står i mappen HUS1. Ett fall som redan är beräknat, med samma "
                   "indata, beräknas inte igen; ett som misslyckas lämnar mappen HUS1.fel och beräknas när "
                   "kommandot körs nästa gång. Ctrl+C avslutar motorerna och lämnar inga halva resultat.",
         .complaint = runComplaint},
        {.name = "rewrite",
         .description = "Läser en indatafil och skriver den igen",
         .run = rewriteCase,
         .parameters = {argument("IN", &Request::file, "Filen som läses"),
                        argument("UT", &Request::target, "Filen som skrivs, gärna samma")},
         .examples = {{"varnotool rewrite HUS1.IND HUS1.IND", "filen i den form som programmet ger den"}}},
        {.name = "report",
         .description = "Skriver en HTML-sida med indata, skiss, moment och resultat",
         .run = printHtmlReport,
         .parameters = {file,
                        option("--out", "UT", &Request::target,
                               "Sidan som skrivs, i stället för standard ut"),
                        option("--result", "RES", &Request::result,
                               "Resultatfilen, i stället för den bredvid indatafilen"),
                        option("--moments", "MOMK", &Request::moments,
                               "Filen med momentkurvorna, i stället för momk.dat bredvid indatafilen")},
         .examples = {{"varnotool report HUS1.IND --out HUS1.html", "en sida att skriva ut eller skicka"}},
         .remark = "Sidan behöver inga andra filer. Det som saknas, eller är äldre än indata, står överst på "
                   "den."},
        {.name = "moments",
         .description = "Skriver momentkurvorna som CSV",
         .run = printMoments,
         .parameters = {argument("MOMK", &Request::moments, "Filen med momentkurvorna"),
                        option("--case", "FIL", &Request::file,
                               "Indatafilen: punkternas läge räknas då från plattans vänstra ände"),
                        flag("--spreadsheet", &Request::spreadsheet,
                             "Semikolon och decimalkomma, som ett svenskt kalkylprogram läser")},
         .examples = {{"varnotool moments momk.dat --case HUS1.IND > HUS1.csv", "kurvorna längs plattan"}}},
        {.name = "result",
         .description = "Skriver texten i en resultatfil",
         .run = printResult,
         .parameters = {file},
         .examples = {{"varnotool result HUS1.res | less", "bläddrar i resultatet"}}},
        {.name = "pages",
         .description = "Skriver utskriftens sidor som JSON",
         .run = printPages,
         .parameters = {file},
         .examples = {{"varnotool pages HUS1.res", "en text per sida"}}},
        {.name = "sketch",
         .description = "Ritar skissen till en indatafil",
         .run = drawSketch,
         .parameters = {file, list, svg},
         .examples = {{"varnotool sketch HUS1.IND --svg HUS1.svg", "skissen som bild"}},
         .complaint = eitherListOrSvg},
        {.name = "diagram",
         .description = "Ritar momentdiagrammet till en indatafil",
         .run = drawDiagram,
         .parameters = {argument("FIL", &Request::file, "Indatafilen"),
                        argument("MOMK", &Request::moments, "Filen med momentkurvorna"), list, svg},
         .examples = {{"varnotool diagram HUS1.IND momk.dat --svg M1.svg", "diagrammet som bild"}},
         .complaint = eitherListOrSvg},
    };
}

} // namespace

const std::vector<CommandRow>& commandTable() {
    static const std::vector<CommandRow> table = makeTable();
    return table;
}

} // namespace varno::tool
