"""Waiting for something to become true: never for a time that is hoped to be long enough."""
import time

PATIENCE = 15.0  # seconds; many times what anything takes on a busy machine
_STEP = 0.004


class NeverHappened(AssertionError):
    """A condition that a test waited for did not become true."""


class Gone(Exception):
    """What was asked is on the screen no longer."""


def wait_until(condition, what, patience=PATIENCE):
    """The first true value of condition(). A thing that goes while it is asked makes the condition
    false. Raises NeverHappened, telling what was waited for."""
    end = time.monotonic() + patience
    while True:
        try:
            value = condition()
        except Gone:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise NeverHappened(f"waited {patience:g} s for this: {what}")
        time.sleep(_STEP)


def let_pass(seconds):
    """For what must not happen within a time, and for clocks that are to be seen standing still."""
    time.sleep(seconds)
