// SPDX-License-Identifier: MIT
// What takes long: started, asked for its progress, cancelled. A job outlives the view that started it.
import {button, el, figure, get, link, redraw, refresh, say, send} from "./main.js";

const PACE_MS = 500;
const running = new Map(); // label → the job's latest answer, {} before the first

// Starts a job, waits for its end, and says how it ended: ended(result) puts that into words.
async function run(label, path, body, ended) {
  let words;
  running.set(label, {});
  redraw();
  try {
    let job = await send("POST", path, body);
    while (job.state === "running") {
      await new Promise(resolve => setTimeout(resolve, PACE_MS));
      job = await get(`jobs/${job.id}`);
      running.set(label, job);
      redraw();
    }
    words = job.state === "done" ? ended(job.result) : job.error?.message ?? `${job.state}.`;
  } catch (error) {
    words = error.message;
  }
  running.delete(label);
  say(`${label}: ${words}`);
  await refresh();
}

// A button that starts a job and then cancels it, so that the focus stays on it; beside it how far the job is: the time
// that is left, or that has passed where the end is not known.
export function jobButton(text, subject, path, body, ended) {
  const label = `${text} ${subject}`, job = running.get(label), {id, elapsed = 0, of} = job ?? {};
  const start = () => job || run(label, path, body, ended);
  const cancel = () => send("DELETE", `jobs/${id}`).catch(error => say(error.message));
  return !link.readOnly && [
    id ? button("Cancel", cancel, label) : button(text, start, subject),
    job && [el("progress", {"aria-label": label, max: of, value: of && elapsed}),
      of ? figure(Math.max(0, of - elapsed), "s left") : figure(elapsed, "s")]];
}
