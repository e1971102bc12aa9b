# SPDX-License-Identifier: MIT
import json
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "bench"))
import results  # noqa: E402


def run(name, time, unit="ms", **more):
    return {"name": name, "run_name": name, "run_type": "iteration", "cpu_time": time, "real_time": 1000 * time,
            "time_unit": unit, **more}


class Load(unittest.TestCase):
    def load(self, *runs):
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"benchmarks": runs}, file)
            file.flush()
            return results.load(file.name)

    def test_takes_every_repetition_and_no_mean_of_them(self):
        times = self.load(run("a", 1), run("a", 3), run("a", 2, run_type="aggregate"))
        self.assertEqual(times, {"a": [1, 3]})

    def test_turns_all_units_into_milliseconds(self):
        times = self.load(run("a", 2, "s"), run("b", 2000, "us"))
        self.assertEqual(times, {"a": [2000], "b": [2]})

    def test_takes_the_time_that_a_benchmark_took_itself(self):
        self.assertEqual(self.load(run("a/manual_time", 1)), {"a/manual_time": [1000]})

    def test_takes_the_time_that_passes_until_the_map_is_drawn(self):
        self.assertEqual(self.load(run("SwitchRedraw/x", 1), run("DrawingList/x", 1)),
                         {"SwitchRedraw/x": [1000], "DrawingList/x": [1]})

    def test_leaves_out_what_failed(self):
        self.assertEqual(self.load(run("a", 1, error_occurred=True)), {})


class Ratios(unittest.TestCase):
    TIMES = {"ReadAllBytes/demo40": [10], "InsertSameRows/demo40": [30], "Import/demo40": [80, 90, 100],
             "ReadAllBytes/demo500": [100], "InsertSameRows/demo500": [300], "Import/demo500": [900]}

    def test_an_import_stands_beside_reading_and_inserting(self):
        self.assertEqual(results.imports(self.TIMES)["demo40"], (90, 40))

    def test_a_system_costs_as_much_in_a_large_game_as_the_times_tell(self):
        # 900 / 500 = 1.8 against 90 / 40 = 2.25
        self.assertAlmostEqual(results.growth(self.TIMES), 0.8)

    def test_without_both_games_there_is_no_growth(self):
        self.assertIsNone(results.growth({"Import/demo40": [1]}))


class Compare(unittest.TestCase):
    def changed(self, before, after, **more):
        old, new = {"a": before}, {"a": after}
        old.update(more.get("old", {}))
        new.update(more.get("new", {}))
        return results.compare(old, new)[0][3:]

    def test_times_that_overlap_are_noise(self):
        ratio, changed = self.changed([10, 12], [11, 13])
        self.assertAlmostEqual(ratio, 12 / 11)
        self.assertIs(changed, False)

    def test_times_that_lie_apart_are_a_change(self):
        self.assertEqual(self.changed([10, 12], [5, 6]), (5.5 / 11, True))
        self.assertEqual(self.changed([10, 12], [20, 24]), (2, True))

    def test_one_repetition_tells_nothing(self):
        self.assertIsNone(self.changed([10], [20, 24])[1])

    def test_a_slower_machine_is_no_slower_program(self):
        ratio, changed = self.changed([10, 12], [20, 24], old={"ReadAllBytes/x": [3]}, new={"ReadAllBytes/x": [6]})
        self.assertEqual((ratio, changed), (1, False))

    def test_what_one_run_has_alone_is_not_compared(self):
        self.assertEqual(results.compare({"a": [1]}, {"b": [1]}), [])


unittest.main()
