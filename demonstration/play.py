#!/usr/bin/env python3
"""Plays the road of one advance on a fresh folder, in the program's real windows with real keys: login, new
requisition, empenho, a dozen notes, accountability, closing with money left, slip. Leaves numbered pictures
and the printed documents as PDF.

Usage: play.py BUILD FOLDER
"""
import datetime
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from desktop import Display, require_tools, rows  # noqa: E402

SOURCE = Path(__file__).resolve().parents[1]
PROCESSES = 150  # few enough for a quick start, many enough for lists that scroll
# Words without accents: a letter that the keyboard of the screen lacks is put on it in passing, and now and
# then comes too late.
PURPOSE = ("Curso sobre contas municipais em Belo Horizonte, com dois participantes: contador e tesoureiro. "
           "Inclui passagens, hospedagem e alimento.")
ADVANCE = "2500,00"
NOTES = [
    ("1041", "posto central", "210,00"),
    ("1042", "hotel das flores", "480,50"),
    ("1043", "restaurante sabor de casa", "64,90"),
    ("1044", "papelaria sao jose", "38,75"),
    ("1045", "taxi aeroporto", "112,00"),
    ("1046", "restaurante sabor de casa", "71,30"),
    ("1047", "estacionamento central", "45,00"),
    ("1048", "farmacia popular", "27,60"),
    ("1049", "hotel das flores", "480,50"),
    ("1050", "posto central", "195,40"),
    ("1051", "restaurante do mercado", "88,15"),
    ("1052", "pedagio rodovia", "32,80"),
]


DOCUMENTS = {
    "Requisição de Adiantamento": "requisicao",
    "Prestação de Contas de Adiantamento": "prestacao-de-contas",
    "Guia de Arrecadação": "guia-de-arrecadacao",
}
STOPPED = "stopped-here.png"


def cents(amount):
    return int(amount.replace(".", "").replace(",", ""))


def reais(value):
    return f"{value // 100:,}".replace(",", ".") + f",{value % 100:02}"


class Play:
    def __init__(self, display, program, pictures):
        self.display, self.program, self.pictures = display, program, pictures
        self.database = program / "Demonstracao.mdb"
        self.steps = 0

    def step(self, words):
        """One line and one picture of what the screen shows now."""
        self.steps += 1
        time.sleep(0.4)
        name = f"{self.steps:02}-{words.split(':')[0].lower().replace(' ', '-')}.png"
        self.display.picture(self.pictures / name)
        print(f"{self.steps:2}  {words}", flush=True)

    def ask(self, sql):
        return rows(self.database, sql, shared=True)[0]

    def keys(self, *keys):
        self.display.key(*keys)

    def type(self, text):
        self.display.type(text)

    def answer(self, title, key="Return"):
        """Answers the box of that title."""
        box = self.display.focus(title)
        self.keys(key)
        self.display.wait(lambda: box not in self.display.windows(title), f"the box {title!r} to close")

    def choose(self, place):
        """Takes an entry of the list that has the keyboard, 0 the first, and goes on."""
        self.keys("alt+Down")
        time.sleep(0.3)
        self.keys("Home", *["Down"] * place, "Return")
        time.sleep(0.2)
        self.keys("Tab")

    def log_in(self):
        self.display.focus("Login")
        self.type("financas")
        self.keys("Tab", "Down")
        self.step("Login: password and the demonstration town's database")
        self.keys("Return")
        self.answer("A L E R T A")
        self.display.focus("Quartela 2014")
        self.step("Main window: the processes begun and not closed")


    def processes(self):
        return set(rows(self.database, "SELECT SEQ FROM Requisicao", shared=True))

    def type_requisition(self):
        known = self.processes()
        self.display.focus("Quartela 2014")
        self.keys("F10", "Down", "Return")
        self.display.focus("Cadastro de Requisição")
        self.keys("alt+g")
        self.choose(11)
        self.choose(0)
        self.choose(3)
        self.choose(1)
        self.choose(0)
        self.type(ADVANCE)
        self.keys("Tab")
        self.type(PURPOSE)
        self.step("Requisition: typed, with the lists that follow one another")
        self.keys("alt+a")
        self.display.focus("Aviso")
        self.step("Question: nothing is saved without it")
        self.answer("Aviso")
        self.answer("Aviso")
        self.number = (self.processes() - known).pop()
        self.display.focus("Cadastro de Requisição")
        self.keys("alt+i")
        self.answer("Aviso")
        self.document("Requisição de Adiantamento")

    def document(self, title):
        """Shows the preview of that title, saves it as PDF and closes it."""
        self.display.focus(title)
        self.step(f"Preview: {title}")
        self.keys("ctrl+s")
        self.display.focus("Salvar como PDF")
        self.keys("ctrl+a")
        path = self.pictures / f"{DOCUMENTS[title]}.pdf"
        self.type(str(path))
        self.keys("Return")
        self.display.wait(path.exists, f"the document {path.name}")
        self.display.no_window("Salvar como PDF")
        self.display.focus(title)
        self.keys("Escape")
        self.display.no_window(title)

    def open_process(self):
        """Opens the process: its number, the first that the delivered counter gives, is below the town's own."""
        self.display.no_window("Cadastro de Requisição")
        self.display.focus("Quartela 2014")
        self.keys("End", "Return")
        self.display.focus("Cadastro de Requisição")

    def type_empenho(self):
        self.open_process()
        self.keys("alt+u")
        self.display.focus("Adiantamento - Empenho")
        year = datetime.date.today().year % 100
        number = self.ask(f"SELECT max(EMPENHO) FROM Adiantamento WHERE EMPENHO % 100 = {year}") // 100
        self.type(f"{number + 1:05}{year:02}")
        self.keys("Tab")
        self.type("512")
        self.keys("Tab", "Tab")
        self.type(f"{datetime.date.today():%d%m%Y}")
        self.keys("Tab")
        self.step("Empenho: its number, the withdrawal, the proposed deadline")
        self.keys("alt+o")
        self.answer("Aviso")
        self.answer("Aviso")
        self.display.no_window("Adiantamento - Empenho")
        self.display.focus("Cadastro de Requisição")
        self.keys("alt+s")

    def type_notes(self):
        self.open_process()
        self.keys("alt+c")
        for document, history, amount in NOTES:
            self.keys("alt+u")
            self.type(f"{datetime.date.today():%d%m%Y}")
            self.keys("Return")
            self.type(document)
            self.keys("Return")
            self.type(history)
            self.keys("Delete", "Return")  # what is proposed beyond it is not wanted
            self.type(amount)
            self.keys("alt+g")
            self.answer("Aviso")
            self.display.focus("Cadastro de Requisição")
        self.step(f"Notes: {len(NOTES)} typed without the mouse")
        self.keys("alt+m")
        self.document("Prestação de Contas de Adiantamento")

    def close(self):
        self.open_process()
        self.keys("alt+c")
        self.keys("alt+e")
        self.display.focus("Aviso")
        self.step("Closing: asked once more")
        self.answer("Aviso")
        self.answer("Finalizar Prestação de Contas")
        self.document("Guia de Arrecadação")

    def leave(self):
        self.display.no_window("Cadastro de Requisição")
        self.display.focus("Quartela 2014")
        self.step("Main window: the process is closed and has left the list")
        self.keys("alt+F4")

    def require_text(self, name, *texts):
        """Ends the run when a printed document does not hold the texts, in capitals or not."""
        document = self.pictures / f"{name}.pdf"
        words = subprocess.run(["pdftotext", "-layout", str(document), "-"], capture_output=True,
                               text=True, check=True).stdout.upper()
        missing = [text for text in texts if text.upper() not in words]
        if missing:
            raise SystemExit(f"{document.name} lacks {missing}")

    def check(self):
        """What the file holds afterwards."""
        spent = sum(cents(note[2]) for note in NOTES)
        written = self.ask("SELECT (FECHAMENTO IS NOT NULL) || '|' || (DEVOLUCAO / 100) || '|' || (SELECT "
                           "count(*) FROM PrestContas WHERE PROCESSO = EMPENHO) FROM Adiantamento "
                           f"WHERE PROCESSO = {self.number}")
        expected = f"1|{cents(ADVANCE) - spent}|{len(NOTES)}"
        if written != expected:
            raise SystemExit(f"the file holds {written} instead of {expected}")
        self.require_text("requisicao", "dois mil e quinhentos reais", "CONTADOR E TESOUREIRO")
        self.require_text("prestacao-de-contas", "PEDAGIO RODOVIA", reais(cents(ADVANCE) - spent))
        self.require_text("guia-de-arrecadacao", "Recorte aqui", reais(cents(ADVANCE) - spent))
        print(f"    Process {self.number // 100:04}/{self.number % 100:02}: {reais(cents(ADVANCE))} advanced, "
              f"{reais(spent)} spent, {reais(cents(ADVANCE) - spent)} paid back.")


def play(display, program, pictures):
    started = display.start(program / "quartela")
    try:
        scene = Play(display, program, pictures)
        scene.log_in()
        scene.type_requisition()
        scene.type_empenho()
        scene.type_notes()
        scene.close()
        scene.leave()
        display.finish(started)
    except SystemExit:
        display.picture(pictures / STOPPED)
        raise
    scene.check()


def clear_away(pictures):
    """Takes an earlier run's pictures and documents away, and nothing else."""
    pictures.mkdir(parents=True, exist_ok=True)
    documents = [pictures / f"{name}.pdf" for name in DOCUMENTS.values()]
    for old in [*pictures.glob("[0-9][0-9]-*.png"), pictures / STOPPED, *documents]:
        old.unlink(missing_ok=True)


def main():
    build, pictures = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    clear_away(pictures)
    with tempfile.TemporaryDirectory() as folder, Display() as display:
        program = Path(folder)
        subprocess.run([str(build / "bin" / "make_database"), "--demonstration",
                        str(program / "Demonstracao.mdb"), "--processes", str(PROCESSES)], check=True)
        subprocess.run([str(SOURCE / "packaging" / "lay-out"), str(build), folder], check=True)
        play(display, program, pictures)
    print(f"Pictures and documents are in {pictures}")


if __name__ == "__main__":
    require_tools()
    main()
