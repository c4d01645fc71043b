#include "base/error_words.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace varno {

namespace {

// "%" stands for the file's path, "@" for the line in it.
struct FileWords {
    int number;
    std::string_view happened;
    std::string_view advice;
};

constexpr std::array fileWords{
    FileWords{errOverflow, "I filen % står@ ett tal som är för stort.",
              "Rätta filen i ett textprogram, eller öppna en annan fil."},
    FileWords{errOutOfMemory, "Filen % är för stor för minnet.",
              "Välj en annan fil, eller stäng andra program och försök igen."},
    FileWords{errSubscriptOutOfRange,
              "I filen % står@ ett nummer eller ett antal som inte finns, till exempel fler än 15 fack.",
              "Rätta filen i ett textprogram, eller öppna en annan fil."},
    FileWords{errBadFileNameOrNumber, "Filen % kan inte användas: så får ingen fil heta.",
              "Välj ett namn som inte är för långt, inte innehåller \\ / : * ? \" < > | och inte betyder en "
              "enhet (som CON eller NUL)."},
    FileWords{errFileNotFound, "Filen % finns inte.", "Kontrollera namnet och mappen."},
    FileWords{errBadFileMode, "Filen % är öppnad för något annat.", "Starta om programmet och försök igen."},
    FileWords{errFileAlreadyOpen, "Filen % är redan öppen.", "Stäng den i andra program och försök igen."},
    FileWords{errDeviceIo, "Disken eller nätverket svarade med ett fel för filen %.",
              "Försök igen, eller använd en annan disk."},
    FileWords{errFileAlreadyExists, "Det finns redan en fil eller mapp med namnet %.",
              "Välj ett annat namn."},
    FileWords{errDiskFull, "Disken är full: det finns inte plats för filen %.",
              "Frigör plats och försök igen, eller välj en annan disk."},
    FileWords{errInputPastEnd,
              "Filen % tar slut@ innan allt är läst: den är tom, avklippt eller av ett annat slag.",
              "Öppna en annan fil, till exempel en säkerhetskopia."},
    FileWords{errTooManyFiles, "För många filer är öppna; det finns inte plats för %.",
              "Stäng andra program och försök igen."},
    FileWords{errDeviceUnavailable, "Enheten där filen % skulle finnas är inte tillgänglig.",
              "Anslut disken eller nätverket och försök igen, eller välj en annan mapp."},
    FileWords{
        errPermissionDenied, "Filen % är öppen i ett annat program eller står på en skrivskyddad disk.",
        "Stäng filen i det andra programmet och försök igen, eller välj ett annat namn eller en annan mapp."},
    FileWords{errDiskNotReady, "Enheten där filen % skulle finnas är inte klar.",
              "Sätt i disken och försök igen."},
    FileWords{errPathFileAccess,
              "Åtkomst nekad till %: det är en mapp, en skrivskyddad fil eller en fil som Du saknar "
              "rättigheter till.",
              "Ta bort skrivskyddet, eller välj ett annat namn eller en annan mapp."},
    FileWords{errPathNotFound, "Mappen för filen % finns inte.",
              "Kontrollera att mappen finns och att disken eller nätverket är anslutet."},
};

struct PlainWords {
    int number;
    std::string_view happened;
    std::string_view notDone;
    std::string_view advice;
};

constexpr std::string_view broken = "Kommandot avbröts; fallet finns kvar i programmet.";

constexpr std::array plainWords{
    PlainWords{errOverflow, "Ett tal är för stort.", broken,
               "Kontrollera de senast inmatade talen; heltal får vara högst 32767."},
    PlainWords{errOutOfMemory, "Minnet räcker inte.", broken,
               "Spara fallet, stäng andra program och försök igen."},
    PlainWords{errSubscriptOutOfRange, "Ett nummer eller ett antal är större än vad som får plats.", broken,
               "Kontrollera antalet fack och linjelaster och de nummer som är valda."},
    PlainWords{errDivisionByZero, "Ett mått eller en storlek som det ska delas med är 0.", broken,
               "Kontrollera de senast inmatade talen."},
    PlainWords{errBadFileNameOrNumber, "En fil kunde inte användas.", broken,
               "Kontrollera filens namn och mapp och försök igen."},
    PlainWords{errFileNotFound, "Filen finns inte.", broken, "Kontrollera namnet och mappen."},
    PlainWords{errDeviceUnavailable, "Enheten är inte tillgänglig.", broken,
               "Anslut disken eller nätverket och försök igen, eller välj en annan enhet."},
    PlainWords{errDiskNotReady, "Enheten är inte klar.", broken, "Sätt i disken och försök igen."},
    PlainWords{errPathNotFound, "Mappen finns inte.", broken, "Kontrollera stavningen."},
    PlainWords{errPrinter, "Skrivaren svarade med ett fel.", "Utskriften avbröts och är inte fullständig.",
               "Kontrollera skrivaren och skriv ut igen."},
};

constexpr std::array fieldWords{
    FileWords{errOverflow, "Talet i fältet % är för stort.",
              "Ange ett mindre tal; heltal får vara mellan -32768 och 32767."},
    FileWords{errSubscriptOutOfRange, "Talet i fältet % är större än vad som får plats.",
              "Ange ett mindre tal."},
};

std::string_view notDoneTo(FileAction action) {
    switch (action) {
    case FileAction::reading:
        return "Filen har inte lästs in; det som fanns i programmet är kvar.";
    case FileAction::writing:
        return "Filen har inte sparats. Fanns den förut är den oförändrad, och det som skulle sparas finns "
               "kvar i programmet.";
    case FileAction::deleting:
        return "Filen har inte tagits bort; det som är markerat i listan finns kvar.";
    default:
        return broken;
    }
}

template <typename Words>
const Words* find(const auto& table, int number) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Words& row) { return row.number == number; });
    return found == table.end() ? nullptr : &*found;
}

// The line goes in first: a path may hold any of the signs.
std::string filled(std::string_view sentence, const std::string& name, int line = 0) {
    std::string out(sentence);
    if (const auto place = out.find('@'); place != std::string::npos)
        out.replace(place, 1, line == 0 ? "" : " på rad " + std::to_string(line));
    if (const auto place = out.find('%'); place != std::string::npos) out.replace(place, 1, name);
    return out;
}

std::string inQuotes(const std::string& caption) {
    return "\"" + caption + "\"";
}

} // namespace

ErrorWords errorWords(int number, const ErrorSubject& subject) {
    if (!subject.said.empty()) return {subject.said, {}, {}};
    if (!subject.file.empty()) {
        const FileWords* row = find<FileWords>(fileWords, subject.cause != 0 ? subject.cause : number);
        if (row == nullptr) row = find<FileWords>(fileWords, errDeviceIo);
        return {filled(row->happened, subject.file, subject.line), std::string(notDoneTo(subject.action)),
                std::string(row->advice)};
    }
    if (!subject.field.empty()) {
        if (const FileWords* row = find<FileWords>(fieldWords, number))
            return {filled(row->happened, inQuotes(subject.field)), "Fältet behåller sitt förra värde.",
                    std::string(row->advice)};
    }
    if (const PlainWords* row = find<PlainWords>(plainWords, number))
        return {std::string(row->happened), std::string(row->notDone), std::string(row->advice)};
    return {"Något gick fel.", std::string(broken),
            "Försök igen. Spara fallet under ett annat namn om felet kommer tillbaka."};
}

} // namespace varno
