"""The program is killed at any moment of a run, again and again: the files are whole afterwards,
and the program starts. KEYFLUENT_KILLS sets how often, KEYFLUENT_SEED the moments."""
import os
import pathlib
import subprocess
import sys
import unittest

from harness import case, machine

KILLS = int(os.environ.get("KEYFLUENT_KILLS", "100"))
SEED = int(os.environ.get("KEYFLUENT_SEED", "1"))
SCRIPT = pathlib.Path(__file__).with_name("killed_runs.py")


class Killed(unittest.TestCase):
    def test_killed_at_any_moment(self):
        """Several at a time where each can have a machine view of its own, for each run has to wait
        for the opening picture."""
        workers = min(8, KILLS) if machine.is_isolated() else 1
        started = []
        for worker in range(workers):
            environment = dict(os.environ, KEYFLUENT_SEED=str(SEED * 1000 + worker),
                               KEYFLUENT_KILLS=str(-(-KILLS // workers)))
            machine.forget_isolation(environment)
            started.append(subprocess.Popen([sys.executable, "-B", SCRIPT], env=environment,
                                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT))
        reports = [worker.communicate()[0].decode(errors="replace") for worker in started]
        for worker, report in zip(started, reports):
            self.assertEqual(worker.returncode, 0, report)


if __name__ == "__main__":
    case.main()
