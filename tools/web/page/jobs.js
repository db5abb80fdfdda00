// SPDX-License-Identifier: MIT
// What takes long: started, asked for its progress, cancelled. A job outlives the view that started it.
import {ApiError, button, el, figure, get, redraw, refresh, say, send} from "./main.js";

const PACE_MS = 500;
const running = new Map(); // label → the job's latest answer

// Starts a job, waits for its end, and says how it ended: ended(result) puts that into words.
async function run(label, path, body, ended) {
  let words;
  try {
    let job = await send("POST", path, body);
    while (job.state === "running") {
      running.set(label, job);
      redraw();
      await new Promise(resolve => setTimeout(resolve, PACE_MS));
      job = await get(`jobs/${job.id}`);
    }
    words = job.state === "done" ? ended(job.result) : job.error?.message ?? `${job.state}.`;
  } catch (error) {
    if (!(error instanceof ApiError)) throw error;
    words = error.message;
  }
  running.delete(label);
  say(`${label}: ${words}`);
  await refresh();
}

export const isRunning = label => running.has(label);

export const jobButton = (text, label, path, body, ended) =>
  el("button", {type: "button", disabled: isRunning(label), "aria-label": `${text}: ${label}`, onclick: () => {
    running.set(label, {});
    redraw();
    run(label, path, body, ended);
  }}, text);

// The bar of a job that runs, with the time that is left, or that has passed where the end is not known.
export function progress(label) {
  const job = running.get(label);
  if (!job) return null;
  const {elapsed = 0, of} = job;
  return el("p.progress", el("progress", {"aria-label": label, max: of, value: of && elapsed}),
    of ? figure(Math.max(0, of - elapsed), "s left") : figure(elapsed, "s"),
    job.id && button("Cancel", () => send("DELETE", `jobs/${job.id}`).catch(error => say(error.message)), label));
}
