#include "frontend/dialogs/File_words.h"

namespace tarnvik {

FileDialogWords File_words(bool english, bool saves, const char* caption, const char* files) {
    if (english) {
        return {caption, saves ? "Save" : "Open", "Cancel", "Look in:", "File name:", "Files of type:", files};
    }
    return {caption, saves ? "Lagre" : "Åpne", "Avbryt", "Let i:", "Filnavn:", "Filtype:", files};
}

} // namespace tarnvik
