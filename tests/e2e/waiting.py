"""Waiting for what is to happen, never a fixed time."""

import time

DEADLINE = 30  # seconds; far more than anything takes, so that a busy machine fails nothing


def wait_for(what, probe):
    """Calls `probe` until it gives something true and returns that."""
    end = time.monotonic() + DEADLINE
    while True:
        result = probe()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"waited {DEADLINE} s in vain for {what}")
        time.sleep(0.02)
