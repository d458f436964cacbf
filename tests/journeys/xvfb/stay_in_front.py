#!/usr/bin/env python3
"""Every window that the main window opens comes in front with the keyboard, by the window manager's own choice,
and stays in front of the main window when that is clicked, be that maximised or not.

Usage: stay_in_front.py BUILD SCREENSHOTS
"""
import sys
from pathlib import Path

from office import answer_alert, laid_out, leave, log_in

MAIN = "Quartela 2014"
PROCESS = "Cadastro de Requisição"
# The place of each window's command on the ribbon: its tab and its button there.
COMMANDS = {
    PROCESS: (0, 0),
    "Cadastro Avulso de Requisição": (0, 3),
    "Localizar": (0, 5),
    "Ordenador de Despesas": (2, 0),
    "Responsáveis pelo Recursos": (2, 1),
    "Tipos de Processos": (2, 2),
    "Tipos de Adiantamentos": (2, 3),
    "Cadastro de Dotações": (2, 4),
    "Cadastro de Secretarias": (2, 5),
}
ALERT = (0, 4)
SETTINGS = (3, 1)


class Scene:
    def __init__(self, display, pictures):
        self.display, self.pictures = display, pictures
        self.main = display.focus(MAIN)
        self.way = "normal"

    def keys(self, *keys):
        self.display.key(*keys)

    def command(self, tab, button):
        self.display.focus(MAIN)
        self.keys("F10", "Home", *["Right"] * tab, "Return", "Down", *["Right"] * button, "Return")

    def click_main(self):
        """Where no other window reaches: at the upper right corner, above the ribbon's buttons."""
        width = self.display.place(self.main)[2]
        self.display.click(self.main, width - 30, 12)

    def require_above_main(self, title, window):
        stacking = self.display.stacking()
        if window not in stacking or stacking.index(window) < stacking.index(self.main):
            raise SystemExit(f"{title!r} lies behind the {self.way} main window")

    def stays_above_main(self, title):
        """The window has come in front; the main window, clicked, takes the keyboard and stays behind it."""
        window = self.display.focus(title)
        self.click_main()
        self.display.wait(lambda: self.display.active() == self.main, "the main window's keyboard")
        self.require_above_main(title, window)
        return window

    def take_back(self, title, window):
        """A click on its title gives a window the keyboard again."""
        self.display.click(window, 60, -8)
        self.display.focus(title)

    def close(self, title, window):
        self.take_back(title, window)
        self.keys("alt+F4")
        self.display.no_window(title)

    def shut_until_answered(self, command, title):
        """A window that is to be answered first keeps the keyboard, whatever is clicked."""
        self.command(*command)
        self.display.focus(title)
        self.click_main()
        self.display.focus(title)
        self.keys("alt+F4")
        self.display.no_window(title)

    def windows_of_the_ribbon(self):
        for title, command in COMMANDS.items():
            self.command(*command)
            self.close(title, self.stays_above_main(title))

    def windows_of_the_list(self):
        self.display.focus(MAIN)
        self.keys("Home", "Menu", "i")
        self.close("Inciso", self.stays_above_main("Inciso"))

    def windows_of_a_process(self):
        self.display.focus(MAIN)
        self.keys("Home", "Return")
        process = self.stays_above_main(PROCESS)
        self.take_back(PROCESS, process)
        self.keys("alt+u")
        empenho = self.stays_above_main("Adiantamento - Empenho")
        self.require_above_main(PROCESS, process)
        self.display.picture(self.pictures / f"{self.way}-empenho.png")
        self.close("Adiantamento - Empenho", empenho)
        self.preview(process)

    def preview(self, process):
        """The command closes its window: nothing but the main one is left behind the preview."""
        self.take_back(PROCESS, process)
        self.keys("alt+i")
        self.display.focus("Aviso")
        self.keys("Return")
        title = "Requisição de Adiantamento"
        window = self.stays_above_main(title)
        self.display.no_window(PROCESS)
        self.display.picture(self.pictures / f"{self.way}-preview.png")
        self.close(title, window)

    def play(self):
        self.windows_of_the_ribbon()
        self.windows_of_the_list()
        self.windows_of_a_process()
        self.shut_until_answered(ALERT, "A L E R T A")
        self.shut_until_answered(SETTINGS, "Configurações de Impressão")

    def maximise(self):
        width = self.display.place(self.main)[2]
        self.display.focus(MAIN)
        self.display.click(self.main, 200, -8)
        self.display.click(self.main, 200, -8)
        self.display.wait(lambda: self.display.place(self.main)[2] > width, "the maximised main window")
        self.way = "maximised"


def main():
    pictures = Path(sys.argv[2])
    pictures.mkdir(parents=True, exist_ok=True)
    with laid_out(Path(sys.argv[1]).resolve()) as (display, folder):
        program = display.start(folder / "quartela")
        try:
            log_in(display)
            answer_alert(display)
            scene = Scene(display, pictures)
            scene.play()
            scene.maximise()
            scene.play()
            leave(display, program)
        except SystemExit:
            display.picture(pictures / "stopped-here.png")
            raise
    print("every window stayed in front of the main window")


if __name__ == "__main__":
    main()
