# cFormulas: logic in zafro_core; the developer tool and the fuzzer as their own targets.
