#include "check/Check.h"

#include <ostream>
#include <utility>

#include "calc/RuntimeFault.h"
#include "calc/Version.h"
#include "check/Options.h"
#include "check/Paint_program.h"
#include "check/Status.h"
#include "check/Tool.h"
#include "data/Folders.h"
#include "data/Startup.h"
#include "platform/Path.h"
#include "ports/Rendering.h"

namespace tarnvik {

namespace {

constexpr const char* version_json =
    R"({"name":"tarnvik-check","version":")" TARNVIK_VERSION R"(","standard":"EN 1995-1-1:2004+A1:2008"})"
    "\n";

[[noreturn]] void Refuse_painting(const std::string& option) {
    throw UsageError{option + " needs " + paint_program_name +
                     " beside the program; the package tarnvik has it, or a build with the window"};
}

// The exit status of what the options ask for.
int Carry_out(Options options, const std::filesystem::path& program_folder, std::istream& in, std::ostream& out,
              std::ostream& err, Rendering* rendering) {
    if (options.help) {
        out << Help_text();
        return exit_holds;
    }
    if (options.version) {
        out << (options.json ? version_json : "tarnvik-check " TARNVIK_VERSION "\n");
        return exit_holds;
    }
    if (options.pictures) {
        if (rendering == nullptr) {
            Refuse_painting("--pictures");
        }
        const int written = rendering->Write_pictures(Path_of(*options.pictures));
        out << written << " pictures written to " << *options.pictures << "\n";
        return exit_holds;
    }
    if (options.report && rendering == nullptr) {
        Refuse_painting("--report");
    }
    const std::filesystem::path folder = Readable_folder(Find_data_folder(program_folder, Path_of(options.data)));
    return Tool{std::move(options), in, out, err, rendering}.Run(folder);
}

} // namespace

int Run_check(const std::vector<std::string>& arguments, const std::filesystem::path& program_folder, std::istream& in,
              std::ostream& out, std::ostream& err, Rendering* rendering) {
    try {
        const int status = Carry_out(Parse_options(arguments), program_folder, in, out, err, rendering);
        if (out.flush()) {
            return status;
        }
        err << "tarnvik-check: the results cannot be written\n";
    } catch (const UsageError& error) {
        err << "tarnvik-check: " << error.text << "\n";
    } catch (const DataFileError& error) {
        err << "tarnvik-check: " << error.Text() << "\n";
    } catch (const RuntimeFault& fault) {
        err << "tarnvik-check: " << Fault_text(fault) << "\n";
    }
    return exit_usage;
}

} // namespace tarnvik
