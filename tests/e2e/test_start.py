"""How the program starts: one instance at a time, after a crash, and the update question."""

import datetime
import signal

import desktop
from desktop import Desktop, DesktopTest, THANK_YOU_PAGE, UPDATE_PAGE
from program import Program
from readings import MARIA
from waiting import wait_for


class Instances(DesktopTest):

    def test_second_instance_is_turned_away_and_a_crash_forgotten(self):
        with Desktop("second-instance", accessible=True) as screen:
            first = screen.orravane()
            first.proceed(MARIA)
            first.read_topic("Destiny / Expressions Number", MARIA)
            before = screen.windows("Orravane v1.0")

            second = screen.start(log="second")
            message = screen.accessibility.dialog(second, "Orravane")
            self.assertEqual(message.find("label").name(), "Orravane Is Already Running")
            self.assertEqual([button.name() for button in message.find_all("push button")],
                             ["OK"])
            window = screen.window("Orravane")
            screen.await_painted(window)
            screen.screenshot().save(screen.artefact("already-running.png"))
            self.assertEqual(screen.windows("Orravane v1.0"), before)  # it has not appeared
            self.assertEqual(screen.opened_pages(), [])

            message.find("push button", "OK").click()
            wait_for("the second instance to end", lambda: second.poll() is not None)
            self.assertEqual(second.returncode, 0)
            screen.await_pages([THANK_YOU_PAGE])

            # The first is as it was, and goes on.
            self.assertTrue(first.alive())
            self.assertEqual(screen.windows("Orravane v1.0"), before)
            first.read_topic("Balance Number", MARIA)
            self.assertEqual(screen.opened_pages(), [THANK_YOU_PAGE])
            self.assert_quiet(screen)
            self.assert_quiet(screen, "second")

            # Every user has an instance of his own.
            other = screen.folder / "other-home"
            other.mkdir()
            place = {"HOME": str(other), "XDG_CONFIG_HOME": str(other / ".config"),
                     "XDG_DATA_HOME": str(other / ".local/share")}
            theirs = screen.orravane(env=place, log="other")
            self.assertEqual(len(screen.windows("Orravane v1.0")), 2)

            # A crash stands in nobody's way.
            for program in (first, theirs):
                program.process.send_signal(signal.SIGKILL)
                self.assertEqual(program.await_end(), -signal.SIGKILL)
            wait_for("the dead programs' windows to go",
                     lambda: not screen.windows("Orravane v1.0"))
            again = screen.orravane(log="again")
            again.proceed(MARIA)
            again.read_topic("Personal Day", MARIA)
            self.assertEqual(screen.opened_pages(), [THANK_YOU_PAGE])
            self.assert_quiet(screen, "again")


class UpdateQuestion(DesktopTest):

    def settings(self, screen):
        return screen.home / ".config/orravane/orravane.conf"

    def last_update(self, screen):
        for line in self.settings(screen).read_text().splitlines():
            if line.startswith("LastUpdate="):
                return datetime.datetime.fromisoformat(line.partition("=")[2])
        raise AssertionError("no LastUpdate is stored")

    def store(self, screen, days_ago):
        """Changes the stored moment, in the form that the program has stored it in."""
        moment = datetime.datetime.now().replace(microsecond=0)
        moment -= datetime.timedelta(days=days_ago)
        stored = self.last_update(screen).isoformat()
        text = self.settings(screen).read_text()
        self.assertIn(stored, text)
        self.settings(screen).write_text(text.replace(stored, moment.isoformat()))
        return moment

    def end(self, program):
        self.assertEqual(program.close(), 0)

    def test_from_the_first_run_on(self):
        with Desktop("update-question", accessible=True) as screen:
            pages = []

            def run_quietly():
                self.end(screen.orravane())
                pages.append(THANK_YOU_PAGE)
                screen.await_pages(pages)

            def run_with_question(answer):
                process = screen.start()
                question = screen.accessibility.dialog(process, "Orravane")
                self.assertEqual(question.find("label").name(),
                                 "Do You Wish To Update The Software ?")
                self.assertEqual(screen.windows("Orravane v1.0"), [])
                question.find("push button", answer).click()
                if answer == "Yes":
                    pages.append(UPDATE_PAGE)
                    screen.await_pages(pages)
                self.end(Program(screen, process))
                pages.append(THANK_YOU_PAGE)
                screen.await_pages(pages)

            # The first run asks nothing and stores its moment.
            start = datetime.datetime.now().replace(microsecond=0)
            run_quietly()
            self.assertLessEqual(start, self.last_update(screen))
            self.assertLessEqual(self.last_update(screen), datetime.datetime.now())

            # Within 15 days nothing is asked and the stored moment stays. Ten, so that a
            # midnight during the test does not matter.
            stored = self.store(screen, 10)
            run_quietly()
            self.assertEqual(self.last_update(screen), stored)

            for days, answer in ((20, "Yes"), (-20, "No")):
                with self.subTest(days=days, answer=answer):
                    self.store(screen, days)
                    start = datetime.datetime.now().replace(microsecond=0)
                    run_with_question(answer)
                    self.assertLessEqual(start, self.last_update(screen))
            self.assert_quiet(screen)


if __name__ == "__main__":
    desktop.main()
