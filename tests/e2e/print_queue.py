"""A print server of a test's own with one queue, whose paper is files."""

import os
import pathlib
import shlex
import stat

from waiting import wait_for

QUEUE = "paper"

SERVER = """\
Listen {socket}
Browsing Off
DefaultAuthType None
WebInterface No
LogLevel debug
MaxLogSize 0
PreserveJobHistory Yes
PreserveJobFiles No
<Location />
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""

SERVER_FILES = """\
ServerRoot {root}/etc
CacheDir {root}/cache
StateDir {root}/state
RequestRoot {root}/spool
TempDir {root}/tmp
ServerBin {root}/bin
DataDir /usr/share/cups
DocumentRoot {root}/doc
AccessLog {root}/access_log
ErrorLog {root}/error_log
PageLog {root}/page_log
Printcap
FatalErrors config
"""

QUEUES = """\
<DefaultPrinter {queue}>
Info Paper
DeviceURI paper:/
State Idle
Accepting Yes
Shared No
JobSheets none none
ErrorPolicy abort-job
</DefaultPrinter>
"""

# The printer takes PDF as it comes, so no filter changes what the program sent.
DESCRIPTION = """\
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Manufacturer: "Orravane"
*Product: "(Paper)"
*ModelName: "Paper"
*ShortNickName: "Paper"
*NickName: "Paper"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsVersion: 2.4
*cupsFilter: "application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: {paper}
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: {paper}
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: {paper}
*ImageableArea A4/A4: "{left} {bottom} {a4_right} {a4_top}"
*ImageableArea Letter/US Letter: "{left} {bottom} {letter_right} {letter_top}"
*DefaultPaperDimension: {paper}
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/US Letter: "612 792"
*OpenUI *Duplex/Sides: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: None
*Duplex None/One: ""
*Duplex DuplexNoTumble/Long edge: ""
*Duplex DuplexTumble/Short edge: ""
*CloseUI: *Duplex
"""


def _description(paper, margins):
    left, top, right, bottom = margins
    return DESCRIPTION.format(paper=paper, left=left, bottom=bottom, a4_right=595 - right,
                              a4_top=842 - top, letter_right=612 - right, letter_top=792 - top)


BACKEND = """\
#!/bin/sh
if [ $# -eq 0 ]; then
    echo 'direct paper "Orravane Paper" "Paper"'
    exit 0
fi
# job user title copies options [file]
cat ${{6:+"$6"}} > '{tray}'/job-$1.part || exit 1
printf '%s\\n' "$3" > '{tray}'/job-$1.title
printf '%s\\n%s\\n' "$4" "$5" > '{tray}'/job-$1.settings
mv '{tray}'/job-$1.part '{tray}'/job-$1.pdf
"""


class PrintQueue:
    """Runs while the desktop lasts, which ends it. Without `queues` no printer is set up. The
    printer's own paper is `paper`, and `margins` in points are what it cannot reach: left, top,
    right, bottom."""

    def __init__(self, desktop, queues=True, paper="A4", margins=(18, 18, 18, 18)):
        self.root = desktop.folder / "cups"
        self.tray = self.root / "tray"
        self.socket = self.root / "cups.sock"
        for folder in ("etc/ppd", "cache", "state", "spool", "tmp", "doc", "tray", "bin/backend"):
            (self.root / folder).mkdir(parents=True)
        self.tray.chmod(0o777)  # a print server that runs as root gives up its rights for this
        for entry in pathlib.Path("/usr/lib/cups").iterdir():
            if entry.name != "backend":
                (self.root / "bin" / entry.name).symlink_to(entry)

        etc = self.root / "etc"
        files = SERVER_FILES.format(root=self.root)
        if os.geteuid() == 0:
            files += "User lp\nGroup lp\n"
        (etc / "cupsd.conf").write_text(SERVER.format(socket=self.socket))
        (etc / "cups-files.conf").write_text(files)
        if queues:
            (etc / "printers.conf").write_text(QUEUES.format(queue=QUEUE))
            (etc / "ppd" / f"{QUEUE}.ppd").write_text(_description(paper, margins))
        backend = self.root / "bin/backend/paper"
        backend.write_text(BACKEND.format(tray=self.tray))
        backend.chmod(0o755)

        desktop.spawn(["/usr/sbin/cupsd", "-f", "-c", str(etc / "cupsd.conf"), "-s",
                       str(etc / "cups-files.conf")], log="cupsd", own_user=True)
        try:
            wait_for("the print server", self._listening)
        except AssertionError as trouble:
            raise AssertionError(f"{trouble}: {desktop.log('cupsd')}{self.log()}") from None
        # The machine's own saved options lie elsewhere.
        self.env = {"CUPS_SERVER": str(self.socket), "CUPS_SERVERROOT": str(etc)}
        self.desktop = desktop

    def _listening(self):
        return self.socket.exists() and stat.S_ISSOCK(self.socket.stat().st_mode)

    def log(self):
        path = self.root / "error_log"
        return path.read_text(errors="replace") if path.exists() else ""

    def printed(self):
        """The delivered documents, in their order."""
        return sorted(self.tray.glob("job-*.pdf"), key=lambda path: int(path.stem[4:]))

    def title(self, document):
        return document.with_suffix(".title").read_text().rstrip("\n")

    def settings(self, document):
        """The settings of a job as the printer gets them: option, value. Without those that
        differ from job to job."""
        copies, options = document.with_suffix(".settings").read_text().splitlines()
        found = dict(option.partition("=")[::2] for option in shlex.split(options))
        for name in ("job-uuid", "date-time-at-creation", "date-time-at-processing",
                     "time-at-creation", "time-at-processing", "document-name-supplied"):
            found.pop(name, None)
        return found | {"copies of the document": copies}

    def save_options(self, *options, destination=QUEUE):
        """What `lpoptions` notes for the user; root's own it would note for all users."""
        folder = self.desktop.home / ".cups"
        folder.mkdir(exist_ok=True)
        (folder / "lpoptions").write_text(f"Default {destination} {' '.join(options)}\n")

    def print_by_command(self, file):
        """Prints a file with `lp`, as it stands; gives the document that comes out."""
        before = len(self.printed())
        self.desktop.run("lp", "-t", "Orravane", str(file), env=self.env)
        wait_for("the printed file", lambda: len(self.printed()) > before)
        return self.printed()[-1]

    def jobs(self):
        """How many jobs the queue has ever had."""
        listed = self.desktop.run("lpstat", "-W", "all", "-o", env=self.env).decode()
        return len(listed.splitlines())
